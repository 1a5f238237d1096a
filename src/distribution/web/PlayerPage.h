#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kinalyx {

/// A video of a page.
struct PageVideo {
  std::string file;   ///< below the folder of the page, parts divided by "/", not encoded: "videos/Swing.wmv". One
                      ///< that ends in ".wmv" is played from the file beside it that ends in ".mp4".
  std::string title;  ///< as the student reads it
  std::string date;   ///< "2026-11-26"; may be empty
  double frameSeconds = 0;  ///< for which a picture stands; 0 where that is not known
  bool lesson = false;      ///< made by the instructor, with a voice
  std::string group;        ///< a heading in the list; may be empty. Not read back.
  bool operator==(const PageVideo&) const = default;
};

/// All that a page shows. Texts are plain; what has a meaning in a page is escaped by the writer.
struct PlayerPage {
  std::string coach;     ///< the instructor's name
  std::string company;   ///< may be empty
  std::string student;   ///< may be empty
  std::string logo;      ///< a picture below the folder of the page, not encoded; may be empty
  std::string playlist;  ///< path of a playlist on the server, not encoded, from its root; empty: no link
  std::vector<PageVideo> videos;
};

/// The page, whole in one file: a video, the list that it is chosen from, steps by one picture, half speed. It plays
/// on telephones and on computers, from a server and from a folder or disc, and asks for nothing from elsewhere.
std::string WritePlayerPage(const PlayerPage& page);

/// Student and videos of a page that WritePlayerPage, or an earlier program, has written, all else empty; of any other
/// text nothing, or what looks like them. At most 2000 videos, and only those whose file is a plain name in the folder
/// "videos": the text comes from a server.
PlayerPage ReadPlayerPage(std::string_view text);

}  // namespace kinalyx
