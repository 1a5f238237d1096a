#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "platform/print/Page.h"

namespace kinalyx::test {

/// A page that only remembers what was printed on it. A letter is a tenth of an inch wide, whatever its font.
class RecordedPage final : public IPage {
 public:
  struct Words {
    int page;
    PagePoint at;
    std::string text;
    PageFont font;
  };
  struct Picture {
    int page;
    PageBox box;
    int width;  ///< pixels
    int height;
  };
  struct Stroke {
    PagePoint from;
    PagePoint to;
  };
  struct Text {
    int page;
    PageBox box;
    std::size_t first;
  };
  int pages = 1;
  std::vector<Words> words;
  std::vector<Picture> pictures;
  std::vector<Stroke> lines;
  std::vector<PageBox> boxes;
  std::vector<Text> texts;
  RichText text;  ///< printed last

  const Words* Find(const std::string& wanted) const {
    const auto found = std::ranges::find(words, wanted, &Words::text);
    return found == words.end() ? nullptr : &*found;
  }
  bool HasLine(PagePoint from, PagePoint to) const {
    return std::ranges::any_of(lines, [&](const Stroke& line) {
      return Near(line.from.x, from.x) && Near(line.from.y, from.y) && Near(line.to.x, to.x) && Near(line.to.y, to.y);
    });
  }
  bool HasBox(const PageBox& wanted) const {
    return std::ranges::any_of(boxes, [&](const PageBox& box) { return Same(box, wanted); });
  }
  /// To less than a hundredth of an inch.
  static bool Same(const PageBox& a, const PageBox& b) {
    return Near(a.left, b.left) && Near(a.top, b.top) && Near(a.width, b.width) && Near(a.height, b.height);
  }
  static bool Near(double a, double b) { return std::abs(a - b) < 0.005; }

  void SetFont(const PageFont& font) override { font_ = font; }
  void SetInk(Colour) override {}
  void SetDrawWidth(int) override {}
  void Line(PagePoint from, PagePoint to) override { lines.push_back({from, to}); }
  void Box(const PageBox& box) override { boxes.push_back(box); }
  void Fill(const PageBox&, Colour) override {}
  void PaintPicture(const Surface& picture, const PageBox& box) override {
    pictures.push_back({pages, box, picture.Width(), picture.Height()});
  }
  double TextWidth(std::string_view line) override { return 0.1 * double(line.size()); }
  double LineHeight() override { return font_.points / 60; }
  void Print(PagePoint at, std::string_view line) override { words.push_back({pages, at, std::string(line), font_}); }
  /// Counts lines of text, none of which is broken.
  std::optional<std::size_t> FormatRange(const RichText& printed, std::size_t first, const PageBox& box) override {
    texts.push_back({pages, box, first});
    text = printed;
    std::size_t count = 1;
    for (const TextRun& run : printed.runs) count += std::size_t(std::ranges::count(run.text, '\n'));
    const std::size_t next = first + std::max<std::size_t>(1, std::size_t(box.height / LineHeight()));
    return next < count ? std::optional(next) : std::nullopt;
  }
  void NewPage() override { ++pages; }

 private:
  PageFont font_;
};

}  // namespace kinalyx::test
