#pragma once

#include <QFrame>
#include <string>
#include <vector>

#include "core/Settings.h"
#include "library/LibraryBrowser.h"
#include "platform/host/Host.h"
#include "video/AVIControl.h"

class QLabel;

namespace kinalyx {

class Button;
class FigureLabel;
class IOpenVideo;
class LibraryLists;
class PreviewPlayer;
class SidecarMarkLabels;
class VideoRows;

/// The lists, the preview and the buttons by which a video is opened in the analysis section. The two
/// forms below arrange them.
class OpenVideoParts : public QFrame {
  Q_OBJECT

 public:
  ~OpenVideoParts() override;

  /// Reads the library and goes to the remembered student.
  void Open();
  /// The same for the panel that stood open while its page was left: what it has opened can still be undone.
  void Return();
  /// Lets the preview go: the panel or its page is left.
  void Leave();
  /// The noun has changed, or the short-game naming: with that on, the third button loads the files that belong
  /// together.
  void SettingsChanged();
  LibraryBrowser& Browser() { return browser_; }
  /// So many videos were opened otherwise while it stood open, which can be undone here as well.
  void NoteOpened(int videos);
  /// 0 open, 1 done, 2 load the student's files or undo the last open.
  void CmdOpenVideo_Click(int Index);

 protected:
  /// All that is passed outlives the form.
  OpenVideoParts(PlayerServices& services, const Settings& settings, LastStudentInfo& remembered, IOpenVideo& opener,
                 QWidget* parent);
  void keyPressEvent(QKeyEvent* event) override;

  LibraryLists* lists_;
  QLabel* students_;  // the heading with the noun
  PreviewPlayer* preview_;
  VideoRows* rows_;
  SidecarMarkLabels* marks_;
  FigureLabel* count_;
  Button* buttons_[3] = {};
  Button* disk_;

 private:
  void VideoList_Click();
  void VidCountUpdate();
  bool ShortGame() const { return settings_.ShortGame == 1; }
  void ShowButtons();
  void OpenChosen();
  void OpenSeveral(const std::vector<int>& rows);
  void OpenFamily();

  IHost& host_;
  const Settings& settings_;
  LibraryBrowser browser_;
  IOpenVideo& opener_;
  int opened_ = 0;
};

/// The open panel at the side of the analysis section: a narrow column.
class OpenVidForm : public OpenVideoParts {
 public:
  OpenVidForm(PlayerServices& services, const Settings& settings, LastStudentInfo& remembered, IOpenVideo& opener,
              QWidget* parent = nullptr);
  QSize sizeHint() const override { return {300, 640}; }
};

/// The classic open window, for the middle of the analysis section: three lists side by side.
class OpenVidCForm : public OpenVideoParts {
 public:
  OpenVidCForm(PlayerServices& services, const Settings& settings, LastStudentInfo& remembered, IOpenVideo& opener,
               QWidget* parent = nullptr);
  QSize sizeHint() const override { return {880, 500}; }
};

}  // namespace kinalyx
