#pragma once

#include <QDialog>
#include <vector>

#include "printing/report/ReportMaker.h"

namespace kinalyx {

class Button;
class NameList;

/// Chooses a picture for a report: a video of the student, and one of its marks or its beginning.
class MomentForm : public QDialog {
  Q_OBJECT

 public:
  /// @param report  outlives the form
  MomentForm(const ReportMaker& report, QWidget* parent);

  /// Once the form was accepted.
  ReportItem Chosen() const;

 private:
  void ShowMarks();
  void ShowState();

  const ReportMaker& report_;
  std::vector<StudentVideo> videos_;
  std::vector<VideoMark> marks_;  ///< of the chosen video, with its beginning before them
  NameList* videoList_;
  NameList* markList_;
  Button* add_;
};

}  // namespace kinalyx
