#pragma once

#include <QObject>
#include <string>
#include <unordered_map>
#include <vector>

#include "library/GlanceReader.h"
#include "library/LibraryBrowser.h"

namespace kinalyx {

class NameList;

/// What the rows of a list of videos show besides the name: picture, date, length and size, as they come from the
/// drive; nothing waits for them. Rows that can be seen come first.
class VideoRows : public QObject, private IGlanceEvents {
  Q_OBJECT

 public:
  /// All that is passed outlives it.
  VideoRows(IHost& host, DriveWatch::Send send, LibraryBrowser& browser, NameList& list,
            GlanceStore store = GlanceStore::OfUser());

  /// The list has been filled from the browser.
  void Show();
  /// Pictures and details, or names alone.
  void SetPictures(bool pictures);
  /// The list is sorted by length: all videos are looked at, and sorted when their lengths are known.
  void SetByLength(bool byLength, bool turned);
  /// Nothing is read any more, until Show.
  void Stop();

 signals:
  /// The browser has the videos in another order: the list is to be filled again.
  void Arranged();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void FactsCame(const std::vector<std::string>& paths) override;
  void AllFactsCame() override;
  void LookSoon();
  void Look();
  void ShowFacts(int row);

  IHost& host_;
  LibraryBrowser& browser_;
  NameList& list_;
  GlanceReader reader_;
  std::vector<std::string> paths_;  ///< of the rows
  std::unordered_map<std::string, int> rows_;
  HostTimer soon_;
  bool pictures_ = false;
  bool byLength_ = false;
  bool turned_ = false;
};

}  // namespace kinalyx
