#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <span>
#include <string_view>

namespace kinalyx::templates {

/// What goes over a link.
struct Medium {
  int size = 0;  ///< bytes of a sample
  std::string_view major;
  std::string_view sub;
  bool fixed = false;     ///< all samples have that size
  bool temporal = false;  ///< some need those before them
  std::string_view format;
};

inline constexpr std::string_view kVideo = "{73646976-0000-0010-8000-00AA00389B71}";
inline constexpr std::string_view kAudio = "{73647561-0000-0010-8000-00AA00389B71}";
inline constexpr std::string_view kPictureFormat = "{05589F80-C356-11CE-BF01-00AA0055595A}";
inline constexpr std::string_view kWaveFormat = "{05589F81-C356-11CE-BF01-00AA0055595A}";
inline constexpr std::string_view kNoFormat = "{00000000-0000-0000-0000-000000000000}";

inline constexpr Medium kAsGiven{};  ///< an input that takes whatever it gets
inline constexpr Medium kRgb24{921600, kVideo, "{E436EB7D-524F-11CE-9F53-0020AF0BA770}", true, false, kPictureFormat};
inline constexpr Medium kRgb32{1228800, kVideo, "{E436EB7E-524F-11CE-9F53-0020AF0BA770}", true, false, kPictureFormat};
inline constexpr Medium kMjpg{921600, kVideo, "{47504A4D-0000-0010-8000-00AA00389B71}", false, false, kPictureFormat};
inline constexpr Medium kIv50{921600, kVideo, "{30355649-0000-0010-8000-00AA00389B71}", false, true, kPictureFormat};
inline constexpr Medium kMp42{921600, kVideo, "{3234504D-0000-0010-8000-00AA00389B71}", false, true, kPictureFormat};
inline constexpr Medium kH264{921600, kVideo, "{34363248-0000-0010-8000-00AA00389B71}", false, true, kPictureFormat};
inline constexpr Medium kDvsd{120000, kVideo, "{64737664-0000-0010-8000-00AA00389B71}", true, false, kPictureFormat};
inline constexpr Medium kPcm{2, kAudio, "{00000001-0000-0010-8000-00AA00389B71}", true, false, kWaveFormat};
inline constexpr Medium kAdpcm{512, kAudio, "{00000002-0000-0010-8000-00AA00389B71}", true, false, kWaveFormat};
inline constexpr Medium kAac{512, kAudio, "{000000FF-0000-0010-8000-00AA00389B71}", false, false, kWaveFormat};
inline constexpr Medium kControl{
    4, "{76F4CB44-7C0C-49D9-846C-733FEA776B26}", "{19BF5D0C-2817-4E27-B00C-696AACD27110}", true, false, kNoFormat};
inline constexpr Medium kFile{
    1, "{E436EB83-524F-11CE-9F53-0020AF0BA770}", "{E436EB88-524F-11CE-9F53-0020AF0BA770}", true, false, kNoFormat};

/// A value in the saved state of a filter, where it is not zero.
struct Saved {
  int at;
  int bytes;
  std::uint64_t value;  ///< lowest byte first
};

constexpr Saved Half(int at, std::uint16_t value) { return {at, 2, value}; }
constexpr Saved Word(int at, std::uint32_t value) { return {at, 4, value}; }
constexpr Saved Real(int at, double value) { return {at, 8, std::bit_cast<std::uint64_t>(value)}; }
/// Four letters, as compressors are called.
constexpr Saved Code(int at, std::string_view letters) {
  std::uint32_t value = 0;
  for (int i = 3; i >= 0; --i) value = value << 8 | static_cast<unsigned char>(letters[static_cast<std::size_t>(i)]);
  return {at, 4, value};
}

inline constexpr std::uint32_t kMinusOne = 0xFFFFFFFF;
inline constexpr std::array kCameraState{Real(8, 10.0)};
inline constexpr std::array kMicrophoneState{Word(0, 8)};
inline constexpr std::array kMuxState{Word(0, 32), Word(8, 10'000'000), Word(24, kMinusOne), Word(28, 1)};
inline constexpr std::array kOverwriteState{Word(0, 8), Word(4, 1)};
inline constexpr std::array kKeepState{Word(0, 8)};
inline constexpr std::array kMp42State{Word(0, 8), Code(4, "MP42")};
inline constexpr std::array kH264State{Word(0, 8), Code(4, "H264")};
inline constexpr std::array kDvsdState{Word(0, 8), Code(4, "dvsd")};
inline constexpr std::array kAdpcmState{Word(0, 8), Half(4, 2), Half(6, 217)};
inline constexpr std::array kAacState{Word(0, 8), Half(4, 255)};
inline constexpr std::array kDvEncoderState{Word(0, 2000), Word(4, 2007), Word(8, 2012)};
inline constexpr std::array kEdgeState{Word(0, 50), Half(4, 1), Half(6, 1)};
inline constexpr std::array kAudioTriggerState{Real(0, 0.5), Word(268, 1), Word(272, 500)};
inline constexpr std::array kBlockState{Word(8, 1), Real(16, 1.0), Real(24, -1.0)};
inline constexpr std::array kGateState{Word(12, 1)};
inline constexpr std::array kSplitterState{Word(0, 3)};
inline constexpr std::array kDeinterlaceState{Word(0, 2)};
inline constexpr std::array kMirrorState{Word(0, 1),          Word(4, 1),          Word(8, kMinusOne),
                                         Word(12, kMinusOne), Word(16, kMinusOne), Word(20, kMinusOne)};
inline constexpr std::array kOverlayState{Word(4, 255),        Word(16, 1),         Word(28, kMinusOne),
                                          Word(32, kMinusOne), Word(48, kMinusOne), Word(52, kMinusOne)};
inline constexpr std::array kMotionState{Word(16, 480),   Word(20, 640),   Word(40, 48),    Word(156, 30),
                                         Real(160, 0.05), Real(168, 0.05), Real(176, 0.05), Real(184, 0.05),
                                         Real(192, 0.05), Real(200, 0.05), Real(208, 0.05), Real(216, 0.05),
                                         Real(224, 0.05), Word(232, 150),  Word(244, 1)};
inline constexpr std::array kRendererState{Word(0, 392)};

/// All that is said of a filter of some kind.
struct FilterKind {
  std::string_view label;  ///< a label that begins so is of this kind
  std::string_view classId;
  std::string_view in, out;  ///< pins, where a chain names no other
  Medium gives = kRgb24;     ///< by its output
  Medium takes = kAsGiven;
  int bytes = 0;  ///< of its state with the header; 0 for none
  std::span<const Saved> state = {};
  bool writes = false;   ///< a file
  bool renders = false;  ///< in a window
  bool reads = false;    ///< a file
};

inline constexpr std::string_view kIndeoClass = "{1F73E9B1-8C3A-11D0-A3BE-00A0C9244436}";
inline constexpr std::string_view kCompressorClass = "{D76E2820-1563-11CF-AC98-00AA004C0FA9}";
inline constexpr std::string_view kWriterClass = "{8596E5F0-0DA5-11D0-BD21-00A0C911CE86}";

// clang-format off
inline constexpr std::array kFilterKinds{
    FilterKind{"VideoSource", "{D76A0642-B56F-4B82-BF43-68E84BC66D12}", "", "Capture", kRgb24, kAsGiven, 304, kCameraState},
    FilterKind{"AudioSource", "{E30629D2-27E5-11CE-875D-00608CB78066}", "", "Capture", kPcm, kAsGiven, 32, kMicrophoneState},
    FilterKind{"Audio Trigger", "{C326F854-F2B5-422E-A5EB-68AC7823EBE1}", "", "Trigger", kControl, kAsGiven, 368, kAudioTriggerState},
    FilterKind{"MV Switch", "{07E0CEE4-B9F8-4720-826B-06EBC9EA15A6}", "", "Bool", kControl, kAsGiven, 92},
    FilterKind{"MV Splitter", "{1E95DB54-5404-41E4-A453-865E69CD820A}", "Input", "Output1", kControl, kAsGiven, 68, kSplitterState},
    FilterKind{"MV Block Recording", "{6EEB7EAB-5FD5-4450-84F1-954A9CAA8607}", "Input", "Output", kRgb24, kAsGiven, 192, kBlockState},
    FilterKind{"MV Trigger Source", "{3A9E9EEB-ECF5-42DB-9597-2E62FC84CFB0}", "Video In", "Video Out", kRgb24, kAsGiven, 168, kGateState},
    FilterKind{"Smart Tee", "{CC58E280-8AA1-11D1-B3F1-00AA003761C5}", "Input", "Capture"},
    FilterKind{"Infinite Pin Tee Filter", "{F8388A40-D5BB-11D0-BE5A-0080C706568E}", "Input", "Output1"},
    FilterKind{"Color Space Converter", "{1643E180-90F5-11CE-97D5-00AA0055595A}", "Input", "XForm Out"},
    FilterKind{"LEAD Color Space Converter", "{E2B7DAF2-38C5-11D5-91F6-00104BDB8FF9}", "XForm In", "XForm Out"},
    FilterKind{"LeadEdge", "{E2B7DBEB-38C5-11D5-91F6-00104BDB8FF9}", "XForm In", "XForm Out", kRgb24, kAsGiven, 32, kEdgeState},
    FilterKind{"MV Resize", "{7A7A50EF-0571-4268-9B12-11BC3CDAC122}", "Input", "Output", kRgb24, kAsGiven, 108},
    FilterKind{"MV Deinterlace", "{44BC05B1-097B-4A67-8FC3-4DD15A9E7465}", "Input", "Output", kRgb24, kAsGiven, 28, kDeinterlaceState},
    FilterKind{"MV Mirror", "{BBBB54DB-FDB3-48A4-8156-EE8BF15D015E}", "Input", "Output", kRgb24, kAsGiven, 148, kMirrorState},
    FilterKind{"MV GDI Overlay", "{99DAE1B9-404C-4644-A884-D059F0B0DCE7}", "Input", "Output", kRgb24, kAsGiven, 160, kOverlayState},
    FilterKind{"MV Motion Detection", "{0E3640A7-8494-4226-AE5C-8100E4D52DAF}", "Input", "Output", kRgb24, kAsGiven, 352, kMotionState},
    FilterKind{"DV Video Encoder", "{13AA3650-BB6F-11D0-AFB9-00AA00B67A42}", "XForm In", "XForm Out", kDvsd, kAsGiven, 36, kDvEncoderState},
    // The registered sign in iso-8859-1.
    FilterKind{"Indeo\xAE video 5.10 Compression Filter", kIndeoClass, "Input", "Output", kIv50},
    FilterKind{"Indeo\xAE Video 5.11 Compression Filter", kIndeoClass, "Input", "Output", kIv50},
    FilterKind{"Panasonic DV CODEC", kCompressorClass, "Input", "Output", kDvsd, kAsGiven, 32, kDvsdState},
    FilterKind{"Microsoft MPEG-4 Video Codec V2", kCompressorClass, "Input", "Output", kMp42, kAsGiven, 32, kMp42State},
    FilterKind{"Microsoft ADPCM", "{6A08CF80-0E18-11CF-A24D-0020AFD79767}", "Input", "Output", kAdpcm, kAsGiven, 32, kAdpcmState},
    FilterKind{"H264 Video Codec", kCompressorClass, "Input", "Output", kH264, kAsGiven, 32, kH264State},
    FilterKind{"AAC Audio Codec", "{6A08CF80-0E18-11CF-A24D-0020AFD79767}", "Input", "Output", kAac, kAsGiven, 32, kAacState},
    FilterKind{"AVI Mux", "{E2510970-F137-11CE-8B67-00AA00A3F1A6}", "Input 01", "AVI Out", kFile, kAsGiven, 56, kMuxState},
    // Capture and lessons write over what is there, conversion does not.
    FilterKind{"FileWriter", kWriterClass, "in", "", kAsGiven, kAsGiven, 32, kOverwriteState, true},
    FilterKind{"File writer", kWriterClass, "in", "", kAsGiven, kAsGiven, 32, kOverwriteState, true},
    FilterKind{"File Writer", kWriterClass, "in", "", kAsGiven, kAsGiven, 32, kKeepState, true},
    FilterKind{"Video Renderer", "{B87BEB7B-8D29-423F-AE4D-6582C10175AC}", "VMR Input0", "", kAsGiven, kRgb32, 416, kRendererState, false, true},
    FilterKind{"AVI Splitter", "{1B544C20-FD0B-11CE-8C63-00AA0044B51E}", "input pin", "Stream 00", kRgb24},
    FilterKind{"MJPEG Decompressor", "{301056D0-6DFF-11D2-9EEB-006008039E37}", "XForm In", "XForm Out", kRgb24, kMjpg},
    FilterKind{"AVI Decompressor", "{CF49D4E0-1115-11CE-B03A-0020AF0BA770}", "XForm In", "XForm Out", kRgb24},
};
// clang-format on

/// What a source file is read by: byte by byte, or as a container. Both go by the same label.
inline constexpr FilterKind kFileReader{
    "SourceFile", "{E436EBB5-524F-11CE-9F53-0020AF0BA770}", "", "Output", kFile, kAsGiven, 0, {}, false, false, true};
inline constexpr FilterKind kContainerReader{
    "SourceFile", "{55DA30FC-F16B-49FC-BAA5-AE59FC65F82D}", "", "Video", kDvsd, kAsGiven, 0, {}, false, false, true};

}  // namespace kinalyx::templates
