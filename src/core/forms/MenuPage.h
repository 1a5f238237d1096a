#pragma once

#include <array>

#include "platform/widgets/PageWidget.h"

class QHBoxLayout;

namespace kinalyx {

class Button;
class IHost;
class MenuCanvas;
class Settings;
class TileButton;

/// The first page: the user's picture, the heading lines, and a tile for each section.
class MenuPage : public PageWidget {
  Q_OBJECT

 public:
  MenuPage(IHost& host, Settings& settings, QWidget* parent = nullptr);

  /// Looks once more for a picture that could not be had.
  void Open() override;
  /// Takes over captions after the word for the person under analysis has changed.
  void SetupVocabulary();
  /// Takes over another picture, other heading lines or another place of them.
  void SetupMenuImage();

 signals:
  /// A tile was pressed, 1 to 7.
  void PageWanted(int index);
  /// The user has changed picture or place of the heading here.
  void MenuChanged();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ShowSetupMenu();

  IHost& host_;
  Settings& settings_;
  MenuCanvas* canvas_ = nullptr;
  QHBoxLayout* row_ = nullptr;
  Button* setup_ = nullptr;
  std::array<TileButton*, 8> tiles_{};
};

}  // namespace kinalyx
