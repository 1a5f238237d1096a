#pragma once

#include "core/forms/SetupSection.h"

class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;

namespace kinalyx {

class ColorSchemes;
class Gauge;
class IHost;
class PathBox;

/// The names of instructor and company, the word for the people, window, colours, library, system test.
class GeneralSection : public SetupSection {
  Q_OBJECT

 public:
  GeneralSection(IHost& host, Settings& settings, ColorSchemes& schemes, QWidget* parent = nullptr);

  void SetupProgram() override;
  /// A panel of another room, beneath the others; the section becomes its parent.
  void AddGroup(QWidget* panel) { AddGuest(1, panel); }

 signals:
  void CompanyChanged(const QString& company);
  void VocabularyChanged();
  void DesignChanged();
  void LibraryChanged();
  /// Another window mode was chosen and written.
  void RestartWanted();

 private:
  void AddWho();
  void AddWindow();
  void AddColours();
  void AddLibrary();
  void AddSystemTest();
  void ShowLibrary();
  void Text3_LostFocus();
  void cboResolution_Click(int row);
  void optLayout_Click(int index);
  void SSCheck4_Click(bool on);
  void RunSystemTest();

  IHost& host_;
  ColorSchemes& schemes_;
  QLineEdit* name_ = nullptr;
  QLineEdit* company_ = nullptr;
  QLineEdit* noun_ = nullptr;
  QComboBox* resolution_ = nullptr;
  QButtonGroup* designs_ = nullptr;
  QCheckBox* network_ = nullptr;
  PathBox* path_ = nullptr;
  QWidget* results_ = nullptr;
  QLabel* titles_[5] = {};
  QLabel* texts_[5] = {};
  Gauge* gauges_[5] = {};
};

}  // namespace kinalyx
