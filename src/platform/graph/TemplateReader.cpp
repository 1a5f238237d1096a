#include "platform/graph/TemplateReader.h"

#include <QByteArray>
#include <QString>
#include <QXmlStreamReader>
#include <algorithm>
#include <map>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

constexpr qsizetype kHeaderBytes = 24;  // of a saved state: its version

class Reader {
 public:
  explicit Reader(std::string_view text) : xml_(QByteArray(text.data(), static_cast<qsizetype>(text.size()))) {}

  Result<GraphPlan> Read() {
    while (why_.empty() && !xml_.atEnd())
      if (xml_.readNext() == QXmlStreamReader::StartElement) Begin();
      else if (xml_.isEndElement()) End();
    if (why_.empty() && xml_.hasError())
      why_ = Tr("The text of the graph breaks off or is damaged at character {}: {}", xml_.characterOffset(),
                xml_.errorString().toStdString());
    if (why_.empty() && !graph_) why_ = Tr("The text is not that of a graph.");
    if (!why_.empty()) return Outcome::Failed(why_);
    return std::move(plan_);
  }

 private:
  struct Pin {
    std::string filter;
    std::string pin;
  };

  void Begin() {
    const auto name = xml_.name();
    if (name == u"GRAPH") graph_ = true;
    else if (name == u"FILTER") filter_ = {Value(u"label"), nullptr, {}}, id_ = Value(u"id"), classId_.clear();
    else if (name == u"CLASSID") classId_ = Value(u"clsid");
    else if (name == u"PARAM") filter_.state = State();
    else if (name == u"CONNECTION") from_ = to_ = {};
    else if (name == u"PIN1") from_ = {Value(u"filter"), Value(u"pin")};
    else if (name == u"PIN2") to_ = {Value(u"filter"), Value(u"pin")};
  }

  void End() {
    if (xml_.name() == u"FILTER") EndFilter();
    else if (xml_.name() == u"CONNECTION") EndConnection();
  }

  void EndFilter() {
    filter_.row = FindFilterRow(classId_, filter_.state);
    if (!filter_.row) why_ = Tr("The graph's filter \"{}\" is of an unknown class, {}.", filter_.label, classId_);
    else if (filter_.label.empty()) why_ = Tr("The graph's filter {} has no label.", id_);
    else if (plan_.Find(filter_.label)) why_ = Tr("The graph has two filters \"{}\".", filter_.label);
    else if (!ids_.emplace(id_, plan_.filters.size()).second) why_ = Tr("The graph has two filters {}.", id_);
    plan_.filters.push_back(filter_);
  }

  void EndConnection() {
    const auto from = ids_.find(from_.filter), to = ids_.find(to_.filter);
    if (from == ids_.end() || to == ids_.end()) {
      why_ =
          Tr("The graph connects a filter {} that it does not have.", from == ids_.end() ? from_.filter : to_.filter);
      return;
    }
    const auto& giver = plan_.filters[from->second];
    const auto& taker = plan_.filters[to->second];
    if (!giver.row->HasOutput(from_.pin)) why_ = Tr("\"{}\" has no output \"{}\".", giver.label, from_.pin);
    else if (!taker.row->HasInput(to_.pin)) why_ = Tr("\"{}\" has no input \"{}\".", taker.label, to_.pin);
    plan_.links.push_back({from->second, to->second, from_.pin, to_.pin});
  }

  std::string Value(const char16_t* attribute) const {
    return xml_.attributes().value(QString::fromUtf16(attribute)).toString().toStdString();
  }

  std::vector<std::uint32_t> State() const {
    const QByteArray bytes = QByteArray::fromHex(xml_.attributes().value(QStringLiteral("data")).toLatin1());
    std::vector<std::uint32_t> words;
    for (qsizetype at = kHeaderBytes; at + 4 <= bytes.size(); at += 4) {
      std::uint32_t word = 0;
      for (qsizetype i = 3; i >= 0; --i) word = word << 8 | static_cast<unsigned char>(bytes[at + i]);
      words.push_back(word);
    }
    return words;
  }

  QXmlStreamReader xml_;
  GraphPlan plan_;
  std::map<std::string, std::size_t> ids_;
  bool graph_ = false;
  GraphPlan::Filter filter_;
  std::string id_;
  std::string classId_;
  Pin from_;
  Pin to_;
  std::string why_;
};

}  // namespace

std::optional<std::size_t> GraphPlan::Find(std::string_view label) const {
  for (std::size_t i = 0; i < filters.size(); ++i)
    if (filters[i].label == label) return i;
  return std::nullopt;
}

std::optional<std::size_t> GraphPlan::Downstream(std::size_t from, FilterRole role) const {
  const std::vector<std::size_t> found = AllDownstream(from, role);
  return found.empty() ? std::nullopt : std::optional(found.front());
}

std::vector<std::size_t> GraphPlan::AllDownstream(std::size_t from, FilterRole role) const {
  std::vector<std::size_t> reached{from}, found;
  for (std::size_t i = 0; i < reached.size(); ++i) {
    for (const Link& link : links) {
      if (link.from != reached[i] || std::ranges::find(reached, link.to) != reached.end()) continue;
      if (std::ranges::find(found, link.to) != found.end()) continue;
      (filters[link.to].row->role == role ? found : reached).push_back(link.to);
    }
  }
  return found;
}

bool GraphPlan::Flows(const Link& link) const {
  const FilterRole role = filters[link.from].row->role;
  return role != FilterRole::Trigger && role != FilterRole::AudioTrigger;
}

Result<GraphPlan> ReadTemplate(std::string_view text) { return Reader(text).Read(); }

}  // namespace kinalyx
