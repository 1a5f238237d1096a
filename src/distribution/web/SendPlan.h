#pragma once

#include <span>
#include <string>
#include <vector>

#include "distribution/send/FilesToSend.h"
#include "distribution/web/PlayerPage.h"
#include "distribution/web/Playlist.h"
#include "platform/files/Result.h"
#include "platform/files/Tr.h"
#include "platform/net/IFileServer.h"
#include "platform/net/IMailSender.h"

namespace kinalyx {

/// All that is wanted of a send, as values: whoever carries it out needs neither settings nor windows.
struct SendOrder {
  enum class Mode {
    Email,  ///< each video in a mail of its own
    Web,    ///< a page of videos, and the link to it by mail
  };

  Mode mode = Mode::Web;
  std::vector<FileToSend> files;
  std::string coach;
  std::string company;
  std::string student;
  std::string noun = "student";  ///< the user's word for the student, as messages use it
  std::vector<std::string> addresses;
  std::string webAddress;  ///< where a browser finds the root of the web space
  std::string logo;        ///< a picture file; may be empty, and one that cannot be read is left out
  std::string today;       ///< "2026-11-26"
  std::string workFolder;  ///< for what is made on the way; all that is in it goes
  ServerLogin space;       ///< of the web mode
  MailServer mailServer;
  std::string mailMissing;  ///< what the mail account lacks, in words for the user; empty where a mail can go out
  MailMessage message;      ///< sender, subject and the like; still without readers, text and files
};

/// One file of a send.
struct SendItem {
  FileToSend file;
  std::string name;   ///< for the web, without an ending; no two of a send are alike, in whatever case
  std::string title;  ///< as the student reads it
};

/// What will lie where.
struct SendPlan {
  std::string company;  ///< folder on the server
  std::string student;  ///< folder in it
  std::vector<SendItem> items;

  std::string Folder() const { return company + "/" + student; }
  std::string Videos() const { return Folder() + "/videos"; }
};

/// What a page shows already.
struct OldContent {
  std::string student;
  std::vector<PageVideo> videos;
  std::vector<PlaylistEntry> playlist;
};

inline constexpr const char* kMailFault =
    TrLater("Error sending email. Check your email settings in the Program Setup section.");

/// Names all that an order wants; fails, in words for the user, where something is missing.
Result<SendPlan> PlanSend(const SendOrder& order);
/// Takes from a page and a playlist what they show; a video that only one of them knows counts too.
OldContent ReadOldContent(std::string_view page, std::string_view playlist);
/// True when the content is of another student, whose name has become the same.
bool IsOfAnother(const OldContent& old, const SendOrder& order);
/// A new video with the title of an old one, both lessons or neither, takes its name and thus its place; no other gets
/// a name that the page has already.
void AvoidOldNames(SendPlan& plan, const OldContent& old);

/// The address of a path of the web space: "http://host/Company/Anna%C5%BBak/index.html".
std::string WebLink(const std::string& webAddress, const std::string& path);
/// The page with the new videos and, behind them, those of the old one that they do not replace.
/// @param frameSeconds  of each item; 0 where it is not known
/// @param logo          name of the picture beside the page; may be empty
std::string PageText(const SendOrder& order, const SendPlan& plan, const OldContent& old,
                     std::span<const double> frameSeconds, const std::string& logo);
/// `playlist.wvx` likewise.
std::string PlaylistText(const SendOrder& order, const SendPlan& plan, const OldContent& old);
/// What the mail of the web mode says.
std::string LinkMail(const SendOrder& order, const SendPlan& plan);

}  // namespace kinalyx
