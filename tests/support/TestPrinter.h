#pragma once

#include <optional>
#include <string>
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

  std::optional<std::vector<std::string>> queues = std::vector<std::string>{"Office"};
  std::vector<PrintChoice> choices;  ///< with which pages were printed

  std::optional<std::vector<std::string>> Printers() override { return queues; }
  Outcome Print(const IPrintout&, const PrintChoice& choice) override {
    choices.push_back(choice);
    return answer;
  }
};

}  // namespace kinalyx::test
