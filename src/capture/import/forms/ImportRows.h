#pragma once

#include <QObject>
#include <string>
#include <vector>

#include "capture/import/ImportList.h"
#include "library/GlanceReader.h"

namespace kinalyx {

class NameList;

/// Shows the files of an import in a list: picture, name, date, length and size, and at its end what has become of
/// each. Pictures and lengths come from the drive one after the other; nothing waits for them.
class ImportRows : public QObject, private IGlanceEvents {
  Q_OBJECT

 public:
  /// All that is passed outlives it.
  ImportRows(IHost& host, NameList& list, GlanceStore store = GlanceStore::OfUser());

  /// Brings the list up to date. Rows stay, with what is chosen, as long as they are the same files.
  /// @param part  0 to 1, of the file that is being converted
  void Show(const std::vector<ImportRow>& rows, double part);
  /// Makes one file the current one, without a signal.
  void SetCurrent(const std::string& path);
  const std::vector<std::string>& Paths() const { return paths_; }
  /// Those that are chosen, in their order.
  std::vector<std::string> Chosen() const;

 private:
  void FactsCame(const std::vector<std::string>& paths) override;
  void AllFactsCame() override {}
  void Fill(const std::vector<ImportRow>& rows);
  void Look();
  void ShowFacts(int row);

  IHost& host_;
  NameList& list_;
  GlanceReader reader_;
  std::vector<std::string> paths_;  ///< of the rows
  std::vector<ImportRow> rows_;
  HostTimer soon_;
};

}  // namespace kinalyx
