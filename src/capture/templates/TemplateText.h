#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "capture/templates/GraphChains.h"

namespace kinalyx::templates {

inline constexpr std::string_view kHeader = R"(<?xml version="1.0" encoding="iso-8859-1"?>)";

/// Text that grows in place.
struct Text {
  std::array<char, 16384> chars{};
  std::size_t size = 0;

  constexpr void Add(std::string_view text) {
    for (const char c : text) chars.at(size++) = c;
  }
  constexpr void AddAttribute(std::string_view name, std::string_view value) {
    Add(" ");
    Add(name);
    Add("=\"");
    Add(value);
    Add("\"");
  }
  constexpr std::string_view View() const { return {chars.data(), size}; }
};

class TextMaker {
 public:
  constexpr explicit TextMaker(Graph graph) : graph_(graph), chains_(graph) {}

  constexpr Text Make() {
    text_.Add(kHeader);
    text_.Add(R"(<GRAPH version="1"><FILTER_LIST>)");
    for (std::size_t i = 0; i < chains_.Filters().size(); ++i) AddFilter(i);
    text_.Add("</FILTER_LIST><CONNECTION_LIST>");
    for (const ChainReader::Link& link : chains_.Links()) AddLink(link);
    text_.Add(R"(</CONNECTION_LIST><CLOCK flag="0" id=""/></GRAPH>)");
    return text_;
  }

 private:
  constexpr void AddId(std::string_view name, std::size_t filter) {
    const std::size_t number = filter + 1;
    const char id[] = {'0', '0', static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
    text_.AddAttribute(name, {id, sizeof id});
  }

  constexpr void AddNumber(std::string_view name, int number) {
    char digits[12]{};
    std::size_t at = sizeof digits;
    do digits[--at] = static_cast<char>('0' + number % 10);
    while ((number /= 10) > 0);
    text_.AddAttribute(name, {digits + at, sizeof digits - at});
  }

  constexpr void AddFilter(std::size_t index) {
    const ChainReader::Filter& filter = chains_.Filters()[index];
    const FilterKind& kind = *filter.kind;
    text_.Add("<FILTER");
    AddId("id", index);
    text_.AddAttribute("label", filter.label);
    if (kind.reads) text_.AddAttribute("type", "SOURCE");
    if (kind.writes) text_.AddAttribute("type", "SINK");
    text_.Add("><CLASSID");
    text_.AddAttribute("clsid", kind.classId);
    text_.Add("/><PARAM data=\"");
    AddState(filter);
    text_.Add("\"/>");
    if (kind.reads || kind.writes) {
      text_.Add("<FILE");
      text_.AddAttribute("path", kind.reads ? graph_.read : graph_.written);
      text_.Add("/>");
    }
    if (kind.renders) text_.Add(R"(<VMR streams="1"/>)");
    text_.Add("</FILTER>");
  }

  /// The header that tells the version, and the filter's own bytes, as hexadecimal digits.
  constexpr void AddState(const ChainReader::Filter& filter) {
    if (filter.kind->bytes == 0) return;
    constexpr std::string_view kVersion = "00000000000 ";
    std::array<std::uint8_t, 512> bytes{};
    std::size_t own = 0;
    for (const char c : kVersion) {
      bytes[own] = static_cast<std::uint8_t>(c);
      own += 2;
    }
    const auto put = [&](std::size_t at, std::uint64_t value, int count) {
      for (int i = 0; i < count; ++i, value >>= 8) bytes.at(own + at++) = static_cast<std::uint8_t>(value);
    };
    for (const Saved& saved : filter.kind->state) put(static_cast<std::size_t>(saved.at), saved.value, saved.bytes);
    for (std::size_t i = 0; i < filter.worded; ++i) put(4 * i, filter.words[i], 4);
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    for (std::size_t i = 0; i < static_cast<std::size_t>(filter.kind->bytes); ++i) {
      text_.Add(kDigits.substr(bytes.at(i) >> 4, 1));
      text_.Add(kDigits.substr(bytes.at(i) & 15, 1));
    }
  }

  constexpr void AddLink(const ChainReader::Link& link) {
    const Medium& taken = chains_.Filters()[link.to].kind->takes;
    const Medium& medium = taken.size > 0 ? taken : chains_.Filters()[link.from].kind->gives;
    text_.Add("<CONNECTION>");
    AddPin("PIN1", link.from, link.out);
    AddPin("PIN2", link.to, link.in);
    text_.Add("<SAMPLESIZE");
    AddNumber("size", medium.size);
    AddGuid("MAJORTYPE", medium.major);
    AddGuid("SUBTYPE", medium.sub);
    text_.Add("/><FIXEDSAMPLESIZE");
    AddNumber("flag", medium.fixed ? 1 : 0);
    text_.Add("/><TEMPORALCOMPRESSION");
    AddNumber("flag", medium.temporal ? 1 : 0);
    AddGuid("FORMATTYPE", medium.format);
    text_.Add(R"(/><FORMATDATA data=""/></CONNECTION>)");
  }

  constexpr void AddPin(std::string_view element, std::size_t filter, std::string_view pin) {
    text_.Add("<");
    text_.Add(element);
    AddId("filter", filter);
    text_.AddAttribute("pin", pin);
    text_.Add("/>");
  }

  /// Ends the element before.
  constexpr void AddGuid(std::string_view element, std::string_view guid) {
    text_.Add("/><");
    text_.Add(element);
    text_.AddAttribute("guid", guid);
  }

  Graph graph_;
  ChainReader chains_;
  Text text_;
};

/// The text of a graph, made by the compiler.
template <const Graph& kGraph>
class Baked {
  static constexpr Text kRaw = TextMaker(kGraph).Make();
  static constexpr auto kExact = [] {
    std::array<char, kRaw.size> exact{};
    std::copy_n(kRaw.chars.begin(), kRaw.size, exact.begin());
    return exact;
  }();

 public:
  static constexpr std::string_view kText{kExact.data(), kExact.size()};
};

}  // namespace kinalyx::templates
