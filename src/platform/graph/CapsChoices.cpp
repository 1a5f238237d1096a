#include "platform/graph/CapsChoices.h"

#include <fmt/format.h>
#include <gst/video/video.h>

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
    GstVideoInfo info;
    if (!Raw() || !gst_video_info_from_caps(&info, caps)) return;
    narrow = GST_VIDEO_INFO_IS_YUV(&info) && info.colorimetry.range == GST_VIDEO_COLOR_RANGE_16_235 &&
             info.colorimetry.matrix == GST_VIDEO_COLOR_MATRIX_BT601;
  }

  bool Raw() const { return kind == "video/x-raw"; }
  bool Jpeg() const { return kind == "image/jpeg"; }

  std::string_view kind;
  std::string_view format;
  int width = 0;
  int height = 0;
  bool fields = false;
  bool narrow = false;  ///< its samples have the matrix of a JPEG, and not the range
};

/// The samples of a JPEG take the whole range, which the encoder does not see to; nor does the converter, where nothing
/// but the range is to be changed.
std::string ToJpeg(const Coming& coming) {
  // Colours of half the height would mix those of the two fields.
  const char* format = coming.fields ? "Y42B" : "I420";
  if (coming.narrow)
    return fmt::format(
        "videoconvert ! video/x-raw,format={},colorimetry=2:4:0:0 ! "
        "videobalance contrast={:.7f} brightness={:.7f} saturation={:.7f} ! {}",
        format, 255.0 / 219, -16.0 / 255, 255.0 / 224, kToJpeg);
  // What a decoder will give is not known yet.
  const char* decoded = coming.Raw() ? "" : "decodebin name=decoder ! videoconvert ! video/x-raw,format=BGRx ! ";
  return fmt::format("{}videoconvert ! video/x-raw,format={},colorimetry=1:4:0:0 ! {}", decoded, format, kToJpeg);
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
