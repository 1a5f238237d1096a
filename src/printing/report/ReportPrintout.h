#pragma once

#include <string>
#include <variant>
#include <vector>

#include "platform/files/Tr.h"
#include "platform/paint/Surface.h"
#include "platform/print/Page.h"
#include "printing/PageHeading.h"

namespace kinalyx {

/// A picture with the words beneath it.
struct ReportPicture {
  Surface picture;
  std::string caption;
};

/// Two pictures side by side.
struct ReportPair {
  std::string title;
  ReportPicture then;
  ReportPicture now;
};

/// What was measured.
struct ReportMeasures {
  struct Row {
    std::string video;
    std::string drawing;
    std::string figure;

    friend bool operator==(const Row&, const Row&) = default;
  };
  std::vector<Row> rows;
};

struct ReportNotes {
  RichText text;
};

using ReportSection = std::variant<ReportPicture, ReportPair, ReportMeasures, ReportNotes>;

/// The pages of a report: a heading, and section after section from the top to the foot of as many pages as it takes.
class ReportPrintout final : public IPrintout {
 public:
  /// @param title  whose report it is
  ReportPrintout(std::string title, std::string date, PageHeading heading, std::vector<ReportSection> sections);

  std::string Title() const override { return Tr("{} - Report", title_); }
  void PrintOn(IPage& page) const override;

 private:
  std::string title_;
  std::string date_;
  PageHeading heading_;
  std::vector<ReportSection> sections_;
};

}  // namespace kinalyx
