#include "capture/templates/CaptureTemplates.h"

#include "capture/templates/TemplateText.h"

namespace kinalyx {
namespace {

using templates::Baked;
using templates::Graph;
using templates::kContainerReader;
using templates::kFileReader;

// What is seen while it can be written at any time. The label of the first renderer is as it has always been.
constexpr Graph kOneCamSS{
    {"VideoSource > Smart Tee[Capture] > MV Trigger Source > AVI Mux > FileWriter;"
     "Smart Tee[Preview] > Color Space Converter > Video Renderer 1"}};
constexpr Graph kOneCamSSAN{
    {"VideoSource > Smart Tee[Capture] > MV Trigger Source{1} > AVI Mux > FileWriter;"
     "Smart Tee[Preview] > Color Space Converter > Video Renderer"}};
constexpr Graph kTwoCamSS{
    {"VideoSource > Smart Tee[Capture] > MV Trigger Source > AVI Mux > FileWriter;"
     "Smart Tee[Preview] > Color Space Converter > Video Renderer;"
     "VideoSource 2 > Smart Tee 1[Capture] > MV Trigger Source 2{1} > AVI Mux 1 > FileWriter 2{8 0};"
     "Smart Tee 1[Preview] > Color Space Converter 0491 > Video Renderer 2"}};

// What is seen, and remembered for a trigger.
constexpr std::string_view kBlock =
    "VideoSource > MV Block Recording[Output] > Smart Tee[Preview] > Color Space Converter > Video Renderer;";
constexpr std::string_view kBlock2 =
    "VideoSource 2 > MV Block Recording 2[Output] > Smart Tee 1[Preview] > Color Space Converter 0001"
    " > Video Renderer 2;";
constexpr std::string_view kSound = "Audio Trigger > [Control]MV Block Recording";
constexpr std::string_view kClick = "MV Switch > [Control]MV Block Recording";
// One trigger for both cameras: they must be taken at the same instant.
constexpr std::string_view kSoundForBoth =
    "Audio Trigger > MV Splitter[Output1] > [Control]MV Block Recording;"
    "MV Splitter[Output2] > [Control]MV Block Recording 2";
constexpr std::string_view kClickForBoth =
    "MV Switch > MV Splitter[Output1] > [Control]MV Block Recording;"
    "MV Splitter[Output2] > [Control]MV Block Recording 2";
constexpr std::string_view kWriteDv = "MV Block Recording[Record] > DV Video Encoder > AVI Mux > FileWriter;";
constexpr std::string_view kWriteIndeo =
    "MV Block Recording[Record] > Indeo\xAE video 5.10 Compression Filter > AVI Mux > FileWriter;";
constexpr std::string_view kWriteIndeo2 =
    "MV Block Recording 2[Record] > Indeo\xAE video 5.10 Compression Filter 1 > AVI Mux 1 > FileWriter 2;";

constexpr Graph kOneCamAutoDV{{kBlock, kWriteDv, kSound}};
constexpr Graph kOneCamAuto{{kBlock, kWriteIndeo, kSound}};
constexpr Graph kOneCamClickDV{{kBlock, kWriteDv, kClick}};
constexpr Graph kOneCamClickAN{{kBlock, kWriteIndeo, kClick}};
constexpr Graph kTwoCamAutoDV{{kBlock, kWriteDv, kBlock2,
                               "MV Block Recording 2[Record] > DV Video Encoder 2 > AVI Mux 1 > FileWriter 2;",
                               kSoundForBoth}};
constexpr Graph kTwoCamAutoAN{{kBlock, kWriteIndeo, kBlock2, kWriteIndeo2, kSoundForBoth}};
constexpr Graph kTwoCamClickDV{{kBlock, kWriteDv, kBlock2,
                                "MV Block Recording 2[Record] > DV Video Encoder 1 > AVI Mux 1 > FileWriter 2;",
                                kClickForBoth}};
constexpr Graph kTwoCamClickAN{{kBlock, kWriteIndeo, kBlock2, kWriteIndeo2, kClickForBoth}};

constexpr Graph kSetupGraph{{"VideoSource; Audio Trigger; VideoSource 2"}};
constexpr Graph kMotionDraw{
    {"VideoSource > MV Deinterlace > MV Mirror > MV GDI Overlay > MV Motion Detection > Smart Tee[Preview]"
     " > Color Space Converter > Video Renderer"}};
constexpr Graph kMotionDraw2{
    {"VideoSource > MV Deinterlace > MV GDI Overlay > MV Motion Detection > Smart Tee[Preview]"
     " > Color Space Converter > Video Renderer"}};
// The level of the microphone is read off a trigger that triggers nothing.
constexpr Graph kScreenRecorder{{"VideoSource > Microsoft MPEG-4 Video Codec V2 > AVI Mux > File writer;"
                                 "AudioSource > Microsoft ADPCM > [Input 02]AVI Mux; Audio Trigger"},
                                R"(c:\record.avi)"};
constexpr Graph kScreenRecorderMp4{
    {"VideoSource > H264 Video Codec > AVI Mux > File writer; AudioSource > AAC Audio Codec > [Input 02]AVI Mux;"
     "Audio Trigger"},
    R"(c:\record.avi)"};

// Conversion: what is read, what is made of it, and what is seen meanwhile.
constexpr std::string_view kFromMjpeg =
    "SourceFile > AVI Splitter > MJPEG Decompressor > Infinite Pin Tee Filter[Output1] > ";
constexpr std::string_view kFromAvi = "SourceFile > AVI Splitter > Infinite Pin Tee Filter[Output1] > ";
constexpr std::string_view kFromContainer = "SourceFile > AVI Decompressor > Smart Tee[Capture] > ";
constexpr std::string_view kToIndeo = "Indeo\xAE Video 5.11 Compression Filter > AVI Mux > File Writer;";
constexpr std::string_view kToDv = "Panasonic DV CODEC > AVI Mux > File Writer;";
constexpr std::string_view kToDvEdge = "LeadEdge > Panasonic DV CODEC > AVI Mux > File Writer;";
// The renderer's last words are the number 1.0, three times.
constexpr std::string_view kSeen =
    "Infinite Pin Tee Filter[Output2] > Color Space Converter"
    " > Video Renderer{392 1 1065353216 0 0 0 1065353216 1065353216}";
constexpr std::string_view kSeenOfContainer =
    "Smart Tee[Preview] > Color Space Converter > Video Renderer{392 1 1065353216 0 0 0 1065353216 1065353216}";

constexpr std::string_view kMjpegIn = R"(C:\MVFilterVids\mjpg320.AVI)", kMjpegOut = R"(C:\mjpg320out.avi)";
constexpr std::string_view kRawIn = R"(C:\MVFilterVids\raw320in.avi)", kRawOut = R"(C:\raw320out.avi)";
constexpr std::string_view kDvIn = R"(C:\MVFilterVids\dvin.avi)", kDvOut = R"(C:\dvout.avi)";

constexpr Graph kMjpegToIndeo{
    {kFromMjpeg, "MV Resize{640 480 0 0} > ", kToIndeo, kSeen}, kMjpegOut, &kFileReader, kMjpegIn};
constexpr Graph kMjpegToDvEdge{
    {kFromMjpeg, "MV Resize{720 480 2 0} > LEAD Color Space Converter 0002 > ", kToDvEdge, kSeen},
    kMjpegOut,
    &kFileReader,
    kMjpegIn};
constexpr Graph kMjpegToDv{{kFromMjpeg, "MV Resize{720 480 2 0} > LEAD Color Space Converter 0002 > ", kToDv, kSeen},
                           kMjpegOut,
                           &kFileReader,
                           kMjpegIn};
constexpr Graph kAviToIndeo{
    {kFromAvi, "MV Resize{640 480 0 1} > AVI Decompressor > ", kToIndeo, kSeen}, kRawOut, &kFileReader, kRawIn};
constexpr Graph kAviToDvEdge{
    {kFromAvi, "MV Resize{720 480 2 0} > AVI Decompressor > ", kToDvEdge, kSeen}, kRawOut, &kFileReader, kRawIn};
constexpr Graph kAviToDv{
    {kFromAvi, "MV Resize{720 480 2 0} > AVI Decompressor > ", kToDv, kSeen}, kRawOut, &kFileReader, kRawIn};
constexpr Graph kContainerToIndeo{
    {kFromContainer, "MV Resize{640 480 0 0} > ", kToIndeo, kSeenOfContainer}, kDvOut, &kContainerReader, kDvIn};
constexpr Graph kContainerToDvEdge{
    {kFromContainer, "MV Resize{720 480 2 0} > ", kToDvEdge, kSeenOfContainer}, kDvOut, &kContainerReader, kDvIn};
constexpr Graph kContainerToDv{
    {kFromContainer, "MV Resize{720 480 2 0} > ", kToDv, kSeenOfContainer}, kDvOut, &kContainerReader, kDvIn};

}  // namespace

constexpr std::string_view MVHeader = templates::kHeader;

constexpr std::string_view MVOneCamSS = Baked<kOneCamSS>::kText;
constexpr std::string_view MVOneCamSSAN = Baked<kOneCamSSAN>::kText;
constexpr std::string_view MVTwoCamSS = Baked<kTwoCamSS>::kText;

constexpr std::string_view MVOneCamAutoDV = Baked<kOneCamAutoDV>::kText;
constexpr std::string_view MVOneCamAuto = Baked<kOneCamAuto>::kText;
constexpr std::string_view MVOneCamClickDV = Baked<kOneCamClickDV>::kText;
constexpr std::string_view MVOneCamClickAN = Baked<kOneCamClickAN>::kText;
constexpr std::string_view MVTwoCamAutoDV = Baked<kTwoCamAutoDV>::kText;
constexpr std::string_view MVTwoCamAutoAN = Baked<kTwoCamAutoAN>::kText;
constexpr std::string_view MVTwoCamClickDV = Baked<kTwoCamClickDV>::kText;
constexpr std::string_view MVTwoCamClickAN = Baked<kTwoCamClickAN>::kText;

constexpr std::string_view MVSetupGraph = Baked<kSetupGraph>::kText;
constexpr std::string_view MVMotionDraw = Baked<kMotionDraw>::kText;
constexpr std::string_view MVMotionDraw2 = Baked<kMotionDraw2>::kText;
constexpr std::string_view MVScreenRecorder = Baked<kScreenRecorder>::kText;
constexpr std::string_view MVScreenRecorderMp4 = Baked<kScreenRecorderMp4>::kText;

constexpr std::string_view MVConvertSFAMJPGtoIV50 = Baked<kMjpegToIndeo>::kText;
constexpr std::string_view MVConvertSFAMJPGtoDVEdge = Baked<kMjpegToDvEdge>::kText;
constexpr std::string_view MVConvertSFAMJPGtoDV = Baked<kMjpegToDv>::kText;
constexpr std::string_view MVConvertSFAtoIV50 = Baked<kAviToIndeo>::kText;
constexpr std::string_view MVConvertSFAtoDVEdge = Baked<kAviToDvEdge>::kText;
constexpr std::string_view MVConvertSFAtoDV = Baked<kAviToDv>::kText;
constexpr std::string_view MVConvertHaalitoIV50 = Baked<kContainerToIndeo>::kText;
constexpr std::string_view MVConvertHaalitoDVEdge = Baked<kContainerToDvEdge>::kText;
constexpr std::string_view MVConvertHaalitoDV = Baked<kContainerToDv>::kText;

}  // namespace kinalyx
