#pragma once

#include <QWidget>
#include <string>
#include <vector>

#include "library/LibraryIndexer.h"

class QFrame;
class QLabel;
class QLineEdit;
class QListWidgetItem;

namespace kinalyx {

class NameList;

/// The box in which the whole library is searched, and beneath it, over the page, what was found: people, videos, and
/// fields and notes with the words around. Up and Down move in what was found, Return goes there, Esc closes it.
class SearchBar : public QWidget, private IIndexEvents {
  Q_OBJECT

 public:
  /// All that is passed outlives it.
  /// @param over  the page over which the results are shown
  SearchBar(IHost& host, DriveWatch::Send send, const std::string& root, const ProfileFields& fields, QWidget* over);

  void FocusBox();
  /// Takes the results away; what was typed stays.
  void HideResults();

 signals:
  /// The user wants to go there. The results have been taken away.
  void Wanted(const SearchHit& hit);
  /// Esc: the lists are to have the keys again.
  void Left();

 protected:
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void IndexCame() override;
  void Search();
  void ShowResult(const SearchResult& result);
  void AddGroup(const QString& title, const std::vector<SearchHit>& hits, std::size_t all);
  QString State(const SearchResult& result) const;
  void PlaceResults();
  void Step(int by);
  void Go(const QListWidgetItem* item);
  bool Key(int key);

  LibraryIndexer indexer_;
  QWidget* over_;
  QLineEdit* box_;
  QFrame* results_;
  NameList* list_;
  QLabel* state_;
  std::vector<SearchHit> hits_;
};

}  // namespace kinalyx
