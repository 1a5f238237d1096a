#include "platform/graph/TemplateReader.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "capture/templates/CaptureTemplates.h"

namespace kinalyx::test {
namespace {

/// The way that pictures, sound or triggers go from a filter on: "A > B[pin] > C", each way on a line of its own.
std::string ChainsOf(const GraphPlan& plan) {
  std::vector<std::string> lines;
  const auto label = [&](std::size_t filter) { return plan.filters[filter].label; };
  for (const auto& link : plan.links) {
    const auto& row = *plan.filters[link.from].row;
    const auto& taker = *plan.filters[link.to].row;
    const std::string out = row.outputs[1].empty() ? "" : fmt::format("[{}]", link.out);
    const std::string in = taker.inputs[1].empty() ? "" : fmt::format("[{}]", link.in);
    lines.push_back(label(link.from) + out + " > " + in + label(link.to));
  }
  for (const auto& filter : plan.filters) {
    const std::string start = filter.label;
    const bool linked = std::ranges::any_of(
        plan.links, [&](const auto& link) { return label(link.from) == start || label(link.to) == start; });
    if (!linked) lines.push_back(start);
  }
  std::ranges::sort(lines);
  return fmt::format("{}", fmt::join(lines, "\n"));
}

/// The same of chains as a person writes them, and `2` for the second camera's filters where they differ.
std::string Chains(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.find(" > ") == std::string_view::npos) lines.emplace_back(line);
    for (std::size_t at; (at = line.find(" > ")) != std::string_view::npos; line.remove_prefix(at + 3)) {
      const std::size_t next = std::min(line.find(" > ", at + 3), line.size());
      std::string_view from = line.substr(0, at), to = line.substr(at + 3, next - at - 3);
      if (from.starts_with('[')) from.remove_prefix(from.find(']') + 1);
      if (to.ends_with(']')) to = to.substr(0, to.rfind('['));
      lines.push_back(fmt::format("{} > {}", from, to));
    }
  }
  std::ranges::sort(lines);
  return fmt::format("{}", fmt::join(lines, "\n"));
}

const std::string kSeen = "Smart Tee[Preview] > Color Space Converter > Video Renderer\n";
const std::string kWritten = "VideoSource > Smart Tee[Capture] > MV Trigger Source > [Input 01]AVI Mux > FileWriter\n";
const std::string kBlock = "VideoSource > [Input]MV Block Recording[Output] > Smart Tee\n" + kSeen;
const std::string kBlocks = kBlock +
                            "VideoSource 2 > [Input]MV Block Recording 2[Output] > Smart Tee 1[Preview] > "
                            "Color Space Converter 0001 > Video Renderer 2\n";
const std::string kSplit =
    " > MV Splitter[Output1] > [Control]MV Block Recording\nMV Splitter[Output2] > [Control]MV Block Recording 2";

std::string Recorded(const std::string& encoder) {
  return "MV Block Recording[Record] > " + encoder + " > [Input 01]AVI Mux > FileWriter\n";
}
std::string Recorded2(const std::string& encoder) {
  return "MV Block Recording 2[Record] > " + encoder + " > [Input 01]AVI Mux 1 > FileWriter 2\n";
}
std::string Converted(const std::string& before, const std::string& behind, const std::string& encoder) {
  return "SourceFile > AVI Splitter > " + before + "Infinite Pin Tee Filter[Output1] > MV Resize > " + behind +
         encoder + " > [Input 01]AVI Mux > File Writer\n" +
         "Infinite Pin Tee Filter[Output2] > Color Space Converter > Video Renderer";
}
std::string ConvertedContainer(const std::string& behind) {
  return "SourceFile > AVI Decompressor > Smart Tee[Capture] > MV Resize > " + behind +
         " > [Input 01]AVI Mux > File Writer\n" + kSeen;
}

TEST(Templates, EveryGraphIsLoadedWithItsChains) {
  const std::string indeo = "Indeo® video 5.10 Compression Filter", indeo11 = "Indeo® Video 5.11 Compression Filter";
  const std::string dv = "Panasonic DV CODEC", decoded = "AVI Decompressor > ", mjpeg = "MJPEG Decompressor > ";
  const std::string lead = "LEAD Color Space Converter 0002 > ", edge = "LeadEdge > ";
  const std::string draw = " > MV GDI Overlay > MV Motion Detection > Smart Tee\n" + kSeen;
  const std::pair<std::string_view, std::string> expected[] = {
      {MVOneCamSS, kWritten + "Smart Tee[Preview] > Color Space Converter > Video Renderer 1"},
      {MVOneCamSSAN, kWritten + kSeen},
      {MVTwoCamSS,
       kWritten + kSeen +
           "VideoSource 2 > Smart Tee 1[Capture] > MV Trigger Source 2 > [Input 01]AVI Mux 1 > FileWriter 2\n"
           "Smart Tee 1[Preview] > Color Space Converter 0491 > Video Renderer 2"},
      {MVOneCamAutoDV, kBlock + Recorded("DV Video Encoder") + "Audio Trigger > [Control]MV Block Recording"},
      {MVOneCamAuto, kBlock + Recorded(indeo) + "Audio Trigger > [Control]MV Block Recording"},
      {MVOneCamClickDV, kBlock + Recorded("DV Video Encoder") + "MV Switch > [Control]MV Block Recording"},
      {MVOneCamClickAN, kBlock + Recorded(indeo) + "MV Switch > [Control]MV Block Recording"},
      {MVTwoCamAutoDV,
       kBlocks + Recorded("DV Video Encoder") + Recorded2("DV Video Encoder 2") + "Audio Trigger" + kSplit},
      {MVTwoCamAutoAN, kBlocks + Recorded(indeo) + Recorded2(indeo + " 1") + "Audio Trigger" + kSplit},
      {MVTwoCamClickDV,
       kBlocks + Recorded("DV Video Encoder") + Recorded2("DV Video Encoder 1") + "MV Switch" + kSplit},
      {MVTwoCamClickAN, kBlocks + Recorded(indeo) + Recorded2(indeo + " 1") + "MV Switch" + kSplit},
      {MVSetupGraph, "VideoSource\nAudio Trigger\nVideoSource 2"},
      {MVMotionDraw, "VideoSource > MV Deinterlace > MV Mirror" + draw},
      {MVMotionDraw2, "VideoSource > MV Deinterlace" + draw},
      {MVScreenRecorder,
       "VideoSource > Microsoft MPEG-4 Video Codec V2 > [Input 01]AVI Mux > File writer\n"
       "AudioSource > Microsoft ADPCM > [Input 02]AVI Mux\nAudio Trigger"},
      {MVConvertSFAMJPGtoIV50, Converted(mjpeg, "", indeo11)},
      {MVConvertSFAMJPGtoDVEdge, Converted(mjpeg, lead + edge, dv)},
      {MVConvertSFAMJPGtoDV, Converted(mjpeg, lead, dv)},
      {MVConvertSFAtoIV50, Converted("", decoded, indeo11)},
      {MVConvertSFAtoDVEdge, Converted("", decoded + edge, dv)},
      {MVConvertSFAtoDV, Converted("", decoded, dv)},
      {MVConvertHaalitoIV50, ConvertedContainer(indeo11)},
      {MVConvertHaalitoDVEdge, ConvertedContainer(edge + dv)},
      {MVConvertHaalitoDV, ConvertedContainer(dv)},
  };
  std::set<std::string_view> texts;
  for (const auto& [text, chains] : expected) {
    SCOPED_TRACE(chains);
    const auto plan = ReadTemplate(text);
    ASSERT_TRUE(plan) << plan.Why();
    EXPECT_EQ(ChainsOf(*plan), Chains(chains));
    EXPECT_TRUE(text.starts_with(MVHeader) && text.find('\n') == std::string_view::npos) << "one line";
    EXPECT_TRUE(texts.insert(text).second);
  }
  EXPECT_EQ(texts.size(), 24u);
}

TEST(Templates, FiltersBringWhatWasSavedWithThem) {
  const auto plan = ReadTemplate(MVConvertSFAMJPGtoDV);
  ASSERT_TRUE(plan);
  const auto& resize = plan->filters[*plan->Find("MV Resize")].state;
  EXPECT_EQ(std::vector(resize.begin(), resize.begin() + 4), (std::vector<std::uint32_t>{720, 480, 2, 0}));
  EXPECT_EQ(resize.size(), (108u - 24) / 4);
  EXPECT_EQ(plan->filters[*plan->Find("Panasonic DV CODEC")].row->code, "dvsd");
  EXPECT_EQ(ReadTemplate(MVScreenRecorder)->filters[1].row->code, "MP42") << "the same class";
}

TEST(Templates, WhatIsWrongIsNamed) {
  const auto why = [](std::string_view what, std::string_view instead) {
    std::string text(MVOneCamSSAN);
    text.replace(text.find(what), what.size(), instead);
    return ReadTemplate(text).Why();
  };
  EXPECT_EQ(why("{8596E5F0", "{00000000"),
            "The graph's filter \"FileWriter\" is of an unknown class, {00000000-0DA5-11D0-BD21-00A0C911CE86}.");
  EXPECT_EQ(why("pin=\"Video In\"", "pin=\"Video Inn\""), "\"MV Trigger Source\" has no input \"Video Inn\".");
  EXPECT_EQ(why("pin=\"Preview\"", "pin=\"\""), "\"Smart Tee\" has no output \"\".");
  EXPECT_EQ(why("PIN1 filter=\"0003\"", "PIN1 filter=\"0033\""),
            "The graph connects a filter 0033 that it does not have.");
  EXPECT_EQ(why("label=\"AVI Mux\"", "label=\"Smart Tee\""), "The graph has two filters \"Smart Tee\".");
  EXPECT_EQ(ReadTemplate("<?xml version=\"1.0\"?><FILTER_LIST/>").Why(), "The text is not that of a graph.");
  for (std::size_t length = 0; length < MVOneCamSSAN.size(); length += 101)
    EXPECT_FALSE(ReadTemplate(MVOneCamSSAN.substr(0, length))) << length;
}

}  // namespace
}  // namespace kinalyx::test
