#pragma once

#include <array>
#include <string>

#include "platform/paint/Surface.h"
#include "platform/print/Page.h"

namespace kinalyx {

/// A sheet of the short-game school: a title, three columns, and up to three rows of pictures.
class SheetPrintout final : public IPrintout {
 public:
  struct Row {
    Surface picture;
    std::string label;  ///< beneath it; empty: the row is not on this sheet
  };
  using Rows = std::array<Row, 3>;

  SheetPrintout(std::string title, Rows rows);

  std::string Title() const override { return title_; }
  void PrintOn(IPage& page) const override;

 private:
  std::string title_;
  Rows rows_;
};

}  // namespace kinalyx
