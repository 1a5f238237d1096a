#pragma once

#include <vector>

#include "platform/print/Printer.h"

namespace kinalyx::test {

/// A printer that keeps what it is given, and answers what it is told.
class TestPrinter final : public IPrinter {
 public:
  Outcome answer;
  std::vector<PrintedText> printed;

  Outcome Print(const PrintedText& text) override {
    printed.push_back(text);
    return answer;
  }
};

}  // namespace kinalyx::test
