#include "platform/graph/FilterTable.h"

#include <algorithm>

namespace kinalyx {
namespace {

using enum FilterRole;
using enum FilterEntry;

constexpr std::string_view kDvPictures =
    "videorate ! videoconvertscale ! video/x-raw,width=720,height=480,framerate=30000/1001 ! avenc_dvvideo";

// "identity" passes pictures on unchanged. The pictures and the voice of a lesson are encoded by LessonLane.
// clang-format off
constexpr std::array kRows{
    // Where pictures and sound come from.
    FilterRow{"{D76A0642-B56F-4B82-BF43-68E84BC66D12}", "", Camera, {}, {"Capture"}},
    FilterRow{"{E30629D2-27E5-11CE-875D-00608CB78066}", "", Microphone, {}, {"Capture"}},
    FilterRow{"{E436EBB5-524F-11CE-9F53-0020AF0BA770}", "", FileSource, {}, {"Output"}},
    FilterRow{"{55DA30FC-F16B-49FC-BAA5-AE59FC65F82D}", "", FileSource, {}, {"Video"}, AsTheyCome, "parsebin ! queue"},
    // Triggers.
    FilterRow{"{C326F854-F2B5-422E-A5EB-68AC7823EBE1}", "", AudioTrigger, {}, {"Trigger"}},
    FilterRow{"{07E0CEE4-B9F8-4720-826B-06EBC9EA15A6}", "", Trigger, {}, {"Bool"}},
    FilterRow{"{1E95DB54-5404-41E4-A453-865E69CD820A}", "", Trigger, {"Input"}, {"Output1", "Output2"}},
    FilterRow{"{6EEB7EAB-5FD5-4450-84F1-954A9CAA8607}", "", Block, {"Input", "Control"}, {"Output", "Record"}},
    FilterRow{"{3A9E9EEB-ECF5-42DB-9597-2E62FC84CFB0}", "", Gate, {"Video In"}, {"Video Out"}},
    // Ways that part.
    FilterRow{"{CC58E280-8AA1-11D1-B3F1-00AA003761C5}", "", Tee, {"Input"}, {"Capture", "Preview"}},
    FilterRow{"{F8388A40-D5BB-11D0-BE5A-0080C706568E}", "", Tee, {"Input"}, {"Output1", "Output2"}},
    // Pictures changed. What takes pictures here converts their colours itself, and only if it must.
    FilterRow{"{1643E180-90F5-11CE-97D5-00AA0055595A}", "", Element, {"Input"}, {"XForm Out"}, AsTheyCome, "identity"},
    FilterRow{"{E2B7DAF2-38C5-11D5-91F6-00104BDB8FF9}", "", Element, {"XForm In"}, {"XForm Out"}, AsTheyCome, "identity"},
    FilterRow{"{E2B7DBEB-38C5-11D5-91F6-00104BDB8FF9}", "", Element, {"XForm In"}, {"XForm Out"}, AsTheyCome, "identity"},  // for now
    FilterRow{"{7A7A50EF-0571-4268-9B12-11BC3CDAC122}", "", Element, {"Input"}, {"Output"}, Raw,
              "videoconvertscale ! capsfilter caps=video/x-raw,width={0},height={1}"},
    FilterRow{"{44BC05B1-097B-4A67-8FC3-4DD15A9E7465}", "", Element, {"Input"}, {"Output"}, Raw, "deinterlace fields=top"},
    FilterRow{"{BBBB54DB-FDB3-48A4-8156-EE8BF15D015E}", "", Element, {"Input"}, {"Output"}, Raw,
              "videoconvert ! videoflip video-direction=horiz"},
    // Drawings are laid over the pictures by the window, in the fineness of its screen.
    FilterRow{"{99DAE1B9-404C-4644-A884-D059F0B0DCE7}", "", Element, {"Input"}, {"Output"}, AsTheyCome, "identity"},
    FilterRow{"{0E3640A7-8494-4226-AE5C-8100E4D52DAF}", "", Motion, {"Input"}, {"Output"}, Raw,
              "videoconvert ! capsfilter caps=\"video/x-raw,format={{I420,Y42B,Y444}}\""},
    // Encoders and decoders. Nobody writes Indeo any more; JPEG is as good to step through, and better to look at.
    FilterRow{"{13AA3650-BB6F-11D0-AFB9-00AA00B67A42}", "", Element, {"XForm In"}, {"XForm Out"}, Raw, kDvPictures},
    FilterRow{"{1F73E9B1-8C3A-11D0-A3BE-00A0C9244436}", "", Element, {"Input"}, {"Output"}, Jpeg, "identity"},
    FilterRow{"{D76E2820-1563-11CF-AC98-00AA004C0FA9}", "dvsd", Element, {"Input"}, {"Output"}, Raw, kDvPictures},
    FilterRow{"{D76E2820-1563-11CF-AC98-00AA004C0FA9}", "MP42", Element, {"Input"}, {"Output"}, Raw, "identity"},
    FilterRow{"{D76E2820-1563-11CF-AC98-00AA004C0FA9}", "H264", Element, {"Input"}, {"Output"}, Raw, "identity"},
    FilterRow{"{6A08CF80-0E18-11CF-A24D-0020AFD79767}", "", Element, {"Input"}, {"Output"}, AsTheyCome,
              "audioconvert ! audioresample ! capsfilter caps=audio/x-raw,format=S16LE,rate=48000,channels=1"},
    FilterRow{"{1B544C20-FD0B-11CE-8C63-00AA0044B51E}", "", Element, {"input pin"}, {"Stream 00"}, AsTheyCome, "parsebin ! queue"},
    FilterRow{"{301056D0-6DFF-11D2-9EEB-006008039E37}", "", Element, {"XForm In"}, {"XForm Out"}, Raw, "identity"},
    FilterRow{"{CF49D4E0-1115-11CE-B03A-0020AF0BA770}", "", Element, {"XForm In"}, {"XForm Out"}, Raw, "identity"},
    // Where pictures go.
    FilterRow{"{E2510970-F137-11CE-8B67-00AA00A3F1A6}", "", Mux, {"Input 01", "Input 02", "Input 03", "Input 04"}, {"AVI Out"}},
    FilterRow{"{8596E5F0-0DA5-11D0-BD21-00A0C911CE86}", "", Writer, {"in"}, {}},
    FilterRow{"{B87BEB7B-8D29-423F-AE4D-6582C10175AC}", "", Renderer, {"VMR Input0"}, {}},
};
// clang-format on

/// Four letters as the word in which they are saved.
constexpr std::uint32_t WordOf(std::string_view code) {
  std::uint32_t word = 0;
  for (std::size_t i = 0; i < 4; ++i) word |= std::uint32_t{static_cast<unsigned char>(code[i])} << (8 * i);
  return word;
}

}  // namespace

bool FilterRow::HasInput(std::string_view pin) const {
  return !pin.empty() && std::ranges::find(inputs, pin) != inputs.end();
}

bool FilterRow::HasOutput(std::string_view pin) const {
  return !pin.empty() && std::ranges::find(outputs, pin) != outputs.end();
}

const FilterRow* FindFilterRow(std::string_view classId, const std::vector<std::uint32_t>& state) {
  const auto fits = [&](const FilterRow& row) {
    if (row.classId != classId) return false;
    return row.code.empty() || (state.size() > 1 && state[1] == WordOf(row.code));
  };
  const auto* const found = std::ranges::find_if(kRows, fits);
  return found == kRows.end() ? nullptr : &*found;
}

}  // namespace kinalyx
