#include "capture/livedraw/LiveDrawFile.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <optional>
#include <utility>

namespace kinalyx {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::int64_t kMostBytes = 8 << 20;
constexpr int kDeepest = 8;
constexpr std::size_t kMostShapes = 1000;
constexpr std::size_t kMostPoints = 20'000;
constexpr int kFarthest = 100'000;  // pixels
constexpr int kLargest = 32'767;
constexpr std::size_t kLongestText = 800;  // bytes

/// The member of an object, `otherwise` when it is missing or of another kind.
template <typename T>
T Member(const Json& object, const char* name, T otherwise) {
  const auto found = object.find(name);
  if (found == object.end()) return otherwise;
  if constexpr (std::is_same_v<T, bool>) return found->is_boolean() ? found->template get<bool>() : otherwise;
  else if constexpr (std::is_same_v<T, std::string>) return found->is_string() ? found->template get<T>() : otherwise;
  else return found->is_number() ? found->template get<double>() : otherwise;
}

int Whole(const Json& object, const char* name, int least, int most, int otherwise) {
  const double value = Member<double>(object, name, otherwise);
  return value >= least && value <= most ? static_cast<int>(value) : otherwise;
}

const Json& ListOf(const Json& object, const char* name) {
  static const Json none = Json::array();
  const auto found = object.find(name);
  return found != object.end() && found->is_array() ? *found : none;
}

std::optional<POINTAPI> PointOf(const Json& json) {
  if (!json.is_array() || json.size() != 2 || !json[0].is_number() || !json[1].is_number()) return std::nullopt;
  const double x = json[0].get<double>(), y = json[1].get<double>();
  if (std::abs(x) > kFarthest || std::abs(y) > kFarthest || std::isnan(x + y)) return std::nullopt;
  return POINTAPI{static_cast<std::int32_t>(x), static_cast<std::int32_t>(y)};
}

/// Nothing for a drawing that is not whole.
std::optional<Shape> ShapeOf(const Json& json) {
  if (!json.is_object()) return std::nullopt;
  const auto kind = std::ranges::find(ShapeInfs, Member<std::string>(json, "kind", {}), &ShapeInf::Name);
  if (kind == ShapeInfs.end()) return std::nullopt;
  Shape shape;
  shape.Kind = static_cast<std::int16_t>(kind - ShapeInfs.begin());
  for (const Json& each : ListOf(json, "points")) {
    const auto point = PointOf(each);
    if (!point || shape.Pts.size() >= kMostPoints) return std::nullopt;
    shape.Pts.push_back(*point);
  }
  const bool open = kind->NumPoints == kOpenPoints;
  if (open ? shape.Pts.size() < 2 : shape.Pts.size() != static_cast<std::size_t>(kind->NumPoints)) return std::nullopt;
  shape.NumBound = shape.NumPts = static_cast<std::int16_t>(shape.Pts.size());
  if (!open) shape.Pts.push_back({Whole(json, "turned", -360, 360, 0), 0});
  shape.Locked = true;
  shape.Colour = Whole(json, "colour", 0, 0xFFFFFF, 0);
  shape.Width = static_cast<std::int16_t>(Whole(json, "width", 0, 400, 0));
  shape.Text = Member<std::string>(json, "text", {});
  if (shape.Text.size() > kLongestText) return std::nullopt;
  return shape;
}

Json JsonOf(const Shape& shape) {
  Json json{{"kind", InfOf(shape.Kind).Name}, {"colour", shape.Colour}, {"width", shape.Width}};
  if (!shape.Text.empty()) json["text"] = shape.Text;
  if (const int turned = ClockRotation(shape); turned != 0) json["turned"] = turned;
  Json& points = json["points"] = Json::array();
  for (const POINTAPI& point : BoundPoints(shape)) points.push_back({point.x, point.y});
  return json;
}

}  // namespace

LiveDrawKept ReadLiveDraw(const std::string& path) {
  LiveDrawKept kept;
  const auto bytes = ReadWholeFile(path, kMostBytes);
  if (!bytes) return kept;
  const auto shallow = [](int depth, Json::parse_event_t, const Json&) { return depth <= kDeepest; };
  const Json json = Json::parse(bytes->begin(), bytes->end(), shallow, false);
  if (!json.is_object()) return kept;
  kept.mirror = Member(json, "mirror", kept.mirror);
  kept.muted = Member(json, "muted", kept.muted);
  kept.words = Member(json, "words", kept.words);
  kept.sensitivity = Whole(json, "sensitivity", 0, 100, kept.sensitivity);
  kept.grid = Member(json, "grid", kept.grid);
  for (const Json& each : ListOf(json, "zones")) {
    if (!each.is_object()) continue;
    kept.zones.push_back({Whole(each, "number", 1, 1000, 0),
                          {Member(each, "left", 0.0), Member(each, "top", 0.0), Member(each, "width", 0.0),
                           Member(each, "height", 0.0)}});
  }
  DrawingView& view = kept.drawings.view;
  view = {Whole(json, "pictureWidth", 1, kLargest, 0), Whole(json, "pictureHeight", 1, kLargest, 0), kept.mirror};
  // Drawings in a picture of no size are nowhere.
  if (view.width == 0 || view.height == 0) return kept;
  for (const Json& each : ListOf(json, "drawings"))
    if (auto shape = ShapeOf(each); shape && kept.drawings.shapes.size() < kMostShapes)
      kept.drawings.shapes.push_back(std::move(*shape));
  return kept;
}

Outcome WriteLiveDraw(const std::string& path, const LiveDrawKept& kept, IDisk& disk) {
  Json json{{"mirror", kept.mirror},
            {"muted", kept.muted},
            {"words", kept.words},
            {"sensitivity", kept.sensitivity},
            {"grid", kept.grid},
            {"zones", Json::array()},
            {"pictureWidth", kept.drawings.view.width},
            {"pictureHeight", kept.drawings.view.height},
            {"drawings", Json::array()}};
  for (const HotZone& zone : kept.zones)
    json["zones"].push_back({{"number", zone.id},
                             {"left", zone.place.left},
                             {"top", zone.place.top},
                             {"width", zone.place.width},
                             {"height", zone.place.height}});
  for (const Shape& shape : kept.drawings.shapes) json["drawings"].push_back(JsonOf(shape));
  return WriteWholeFile(path, json.dump(1, ' ', false, Json::error_handler_t::replace) + "\n", disk);
}

}  // namespace kinalyx
