#include "platform/graph/CapsChoices.h"

#include <fmt/format.h>

#include <string>
#include <string_view>

#include "platform/graph/PreviewPainter.h"

namespace kinalyx {
namespace {

constexpr const char* kToJpeg = "jpegenc quality=90";
constexpr int kRawWidth = 640;
constexpr int kRawHeight = 480;

struct Coming {
  explicit Coming(const GstCaps* caps) {
    const GstStructure* first = gst_caps_get_structure(caps, 0);
    kind = gst_structure_get_name(first);
    gst_structure_get_int(first, "width", &width);
    gst_structure_get_int(first, "height", &height);
    if (const char* text = gst_structure_get_string(first, "format")) format = text;
    if (const char* text = gst_structure_get_string(first, "interlace-mode"))
      fields = text != std::string_view("progressive");
  }

  bool Raw() const { return kind == "video/x-raw"; }
  bool Jpeg() const { return kind == "image/jpeg"; }

  std::string_view kind;
  std::string_view format;
  int width = 0;
  int height = 0;
  bool fields = false;
};

std::string ToJpeg(const Coming& coming) {
  const std::string decoded = coming.Raw() ? "" : "decodebin name=decoder ! ";
  // Colours of half the height would mix those of the two fields. The samples of a JPEG take the whole range, which the
  // encoder does not see to.
  return decoded + fmt::format("videoconvert ! video/x-raw,format={},colorimetry=1:4:0:0 ! {}",
                               coming.fields ? "Y42B" : "I420", kToJpeg);
}

class EntryChooser final : public ICapsChooser {
 public:
  explicit EntryChooser(FilterEntry entry) : entry_(entry) {}

  std::string BinFor(const GstCaps* caps) override {
    const Coming coming(caps);
    if (entry_ == FilterEntry::AsTheyCome) return "identity";
    if (entry_ == FilterEntry::Raw)
      return coming.Raw() ? "identity" : coming.Jpeg() ? "jpegdec" : "decodebin name=decoder ! identity";
    return coming.Jpeg() ? "identity" : ToJpeg(coming);
  }

 private:
  const FilterEntry entry_;
};

class FileChooser final : public ICapsChooser {
 public:
  std::string BinFor(const GstCaps* caps) override {
    const Coming coming(caps);
    if (coming.Jpeg() || coming.kind == "video/x-dv") return "identity";
    const bool small = coming.width <= kRawWidth && coming.height <= kRawHeight;
    if (!coming.Raw() || !small) return ToJpeg(coming);
    if (coming.format == "YUY2" || coming.format == "BGR") return "identity";
    return "videoconvert ! capsfilter caps=video/x-raw,format=BGR";
  }
};

class PreviewChooser final : public ICapsChooser {
 public:
  std::string BinFor(const GstCaps* caps) override {
    const Coming coming(caps);
    const std::string planes =
        fmt::format("videoconvert ! capsfilter caps=\"video/x-raw,format={}\"", PreviewPainter::kFormats);
    if (coming.Raw()) return planes;
    // In full size, whatever the window's: decoding a smaller picture takes as long.
    return (coming.Jpeg() ? "jpegdec ! " : "decodebin name=decoder ! ") + planes;
  }
};

}  // namespace

std::shared_ptr<ICapsChooser> ChooseEntry(FilterEntry entry) { return std::make_shared<EntryChooser>(entry); }

std::shared_ptr<ICapsChooser> ChooseForFile() { return std::make_shared<FileChooser>(); }

std::shared_ptr<ICapsChooser> ChooseForPreview() { return std::make_shared<PreviewChooser>(); }

}  // namespace kinalyx
