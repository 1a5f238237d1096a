#pragma once

#include <string>

#include "platform/paint/Surface.h"
#include "platform/print/Page.h"
#include "printing/PageHeading.h"

namespace kinalyx {

/// The printed page of the analysis: the instructor's heading, the picture, and beneath it the notes, which go on over
/// as many pages as they need.
class AnalysisPrintout final : public IPrintout {
 public:
  AnalysisPrintout(std::string title, PageHeading heading, Surface picture, RichText notes);

  std::string Title() const override { return title_; }
  void PrintOn(IPage& page) const override;

  /// The lower edge of the picture on the page, in inches: the picture is 6.98 wide and as high as its proportions
  /// make it. One that would leave the notes no room, as of an upright video, is made smaller: it ends where they
  /// still have ten lines on every page, or without any above the foot of the page.
  double PictureBottom() const { return pictureBottom_; }

 private:
  void PrintPicture(IPage& page) const;

  std::string title_;
  PageHeading heading_;
  Surface picture_;
  RichText notes_;
  double pictureBottom_;
};

/// Notes alone, under a line that says whose they are.
class NotesPrintout final : public IPrintout {
 public:
  NotesPrintout(std::string title, RichText notes);

  std::string Title() const override { return title_; }
  void PrintOn(IPage& page) const override;

 private:
  std::string title_;
  RichText notes_;
};

/// A text without the blanks and empty lines at its end, which would come out as empty pages.
RichText WithoutTail(RichText text);

}  // namespace kinalyx
