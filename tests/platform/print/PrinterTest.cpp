#include "platform/print/Printer.h"

#include <QApplication>

#include "support/TempFolder.h"

namespace kinalyx::test {
namespace {

struct PrinterTest : ::testing::Test {
  /// Prints and counts the pages that came out.
  int PagesOf(const PrintedText& text) {
    const std::string path = folder.Path("out.pdf");
    EXPECT_TRUE(PrintToPdf(text, path));
    const std::string pdf = BytesOf(path);
    int pages = 0;
    for (std::size_t at = pdf.find("/Type /Page\n"); at != std::string::npos; at = pdf.find("/Type /Page\n", at + 1))
      ++pages;
    return pages;
  }

  int argc = 1;
  char name[5] = "test";
  char* argv[2] = {name, nullptr};
  QApplication application{argc, argv};
  TempFolder folder;
};

TEST_F(PrinterTest, ATextTakesAsManyPagesAsItNeeds) {
  PrintedText notes{"Zażółć Ελένη 山田", "Student Notes", "Grip weaker.\r\n\r\nSlower back.\r\n", "Links Golf"};
  EXPECT_EQ(PagesOf(notes), 1);
  for (int line = 0; line < 150; ++line) notes.text += "Line\r\n";
  const int lines = PagesOf(notes);
  EXPECT_GE(lines, 3);
  EXPECT_LE(lines, 5);
  notes.text += std::string(500, '\n');
  EXPECT_EQ(PagesOf(notes), lines) << "blank lines at the end take no paper";
  notes.text = std::string(40000, 'x');  // one word
  EXPECT_GE(PagesOf(notes), 6);
  notes.text = "\n\n";
  EXPECT_EQ(PagesOf(notes), 1);
}

TEST_F(PrinterTest, WhatCannotBeWrittenIsToldOf) {
  const PrintedText notes{"Tom", "", "Grip", ""};
  for (const std::string& path : {folder.Path("none/out.pdf"), folder.Path(), std::string("/dev/full")}) {
    const Outcome printed = PrintToPdf(notes, path);
    EXPECT_EQ(printed.Kind(), Fault::Failed) << path;
    EXPECT_NE(printed.Why().find(path), std::string::npos) << printed.Why();
  }
}

}  // namespace
}  // namespace kinalyx::test
