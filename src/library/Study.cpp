#include "library/Study.h"

#include <fmt/format.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <utility>

#include "library/ShapePairs.h"
#include "library/VideoNames.h"
#include "platform/files/FileCopy.h"
#include "platform/files/Folders.h"

namespace kinalyx {
namespace {

using Json = nlohmann::ordered_json;

constexpr int kVersion = 1;
constexpr std::int64_t kMostBytes = 16 << 20;
constexpr int kDeepest = 40;  // levels of a file; what is deeper is not ours, and would be walked by recursion
constexpr std::size_t kMostMarks = 1000;
constexpr std::size_t kMostText = 2000;  // bytes of a name or of words on the picture
constexpr int kMost = std::numeric_limits<int>::max() / 4;
constexpr double kFastest = 1e6;  // pictures per second

// ---------------------------------------------------------------- values

/// A whole number of an object, `otherwise` when there is none, or none within the range.
int Whole(const Json& object, const char* name, int least, int most, int otherwise) {
  const auto found = object.find(name);
  if (found == object.end() || !found->is_number_integer()) return otherwise;
  const auto value = found->get<double>();
  return value >= least && value <= most ? static_cast<int>(value) : otherwise;
}

double Number(const Json& object, const char* name, double most) {
  const auto found = object.find(name);
  if (found == object.end() || !found->is_number()) return 0;
  const auto value = found->get<double>();
  return std::isfinite(value) && value > 0 && value <= most ? value : 0;
}

std::string Text(const Json& object, const char* name) {
  const auto found = object.find(name);
  if (found == object.end() || !found->is_string()) return {};
  auto text = found->get<std::string>();
  return text.size() <= kMostText ? text : std::string();
}

const Json& List(const Json& object, const char* name) {
  static const Json kNone = Json::array();
  const auto found = object.find(name);
  return found != object.end() && found->is_array() ? *found : kNone;
}

std::string Written(const Json& json, int indent = -1) {
  return json.dump(indent, ' ', false, Json::error_handler_t::replace);
}

/// What an object has besides what we know, as JSON; "" for nothing.
std::string UnknownOf(Json object, std::initializer_list<const char*> known) {
  for (const char* name : known) object.erase(name);
  return object.empty() ? std::string() : Written(object);
}

/// The object to which our members are added.
Json WithUnknown(const std::string& unknown) {
  Json object = unknown.empty() ? Json::object() : Json::parse(unknown, nullptr, false);
  return object.is_object() ? object : Json::object();
}

Json ReadJson(const std::string& path) {
  const auto bytes = ReadWholeFile(path, kMostBytes);
  if (!bytes) return Json(Json::value_t::discarded);
  bool tooDeep = false;
  const auto shallow = [&](int depth, Json::parse_event_t, const Json&) {
    tooDeep = tooDeep || depth > kDeepest;
    return depth <= kDeepest;
  };
  Json json = Json::parse(bytes->begin(), bytes->end(), shallow, false);
  return tooDeep ? Json(Json::value_t::discarded) : json;
}

// ---------------------------------------------------------------- moments and drawings

std::optional<VideoMoment> MomentOf(const Json& json) {
  if (!json.is_object()) return std::nullopt;
  const int frame = Whole(json, "frame", 0, kMost, -1);
  if (frame < 0) return std::nullopt;
  return VideoMoment{frame, Whole(json, "field", 0, 1, 0) == 1};
}

void PutMoment(Json& object, const VideoMoment& moment) {
  object["frame"] = moment.Frame;
  if (moment.SecondField) object["field"] = 1;
}

std::string ColourText(Colour colour) {
  return fmt::format("#{:02x}{:02x}{:02x}", colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF);
}

/// The record by which a drawing is known.
Json RecordOf(const Shape& shape) {
  Json points = Json::array();
  for (const POINTAPI& point : BoundPoints(shape)) points.push_back({point.x, point.y});
  return {{"kind", shape.Kind}, {"color", ColourText(shape.Colour)}, {"points", std::move(points)}};
}

/// A drawing as the file has it; its colour is compared as text, so it stays out of the shape.
Shape ShapeOf(const Json& json) {
  Shape shape;
  shape.Kind = static_cast<std::int16_t>(Whole(json, "kind", 0, std::numeric_limits<std::int16_t>::max(), -1));
  for (const Json& point : List(json, "points")) {
    if (!point.is_array() || point.size() != 2 || !point[0].is_number_integer() || !point[1].is_number_integer() ||
        shape.Pts.size() >= std::numeric_limits<std::int16_t>::max())
      continue;
    shape.Pts.push_back({point[0].get<std::int32_t>(), point[1].get<std::int32_t>()});
  }
  shape.NumBound = shape.NumPts = static_cast<std::int16_t>(shape.Pts.size());
  shape.Time = {Whole(json, "first", 0, kMost, 0), Whole(json, "last", 0, kMost, -1), Whole(json, "fade", 0, kMost, 0)};
  if (shape.Time.Always()) shape.Time = {};
  shape.Text = Text(json, "text");
  shape.Width = static_cast<std::int16_t>(Whole(json, "width", 0, std::numeric_limits<std::int16_t>::max(), 0));
  if (const auto steps = json.find("path"); steps != json.end() && steps->is_object())
    shape.Steps = PathTime{Whole(*steps, "first", -kMost, kMost, 0), Whole(*steps, "fields", 0, 1, 0) == 1};
  shape.Unknown = UnknownOf(json, {"kind", "color", "points", "first", "last", "fade", "text", "width", "path"});
  return shape;
}

bool HasMore(const Shape& shape) {
  return !shape.Time.Always() || !shape.Text.empty() || shape.Width > 0 || shape.Steps || !shape.Unknown.empty();
}

/// What a drawing of the sidecar is compared by.
Shape Bare(const Shape& shape) {
  Shape bare;
  bare.Kind = shape.Kind;
  const auto points = BoundPoints(shape);
  bare.Pts.assign(points.begin(), points.end());
  bare.NumBound = bare.NumPts = static_cast<std::int16_t>(points.size());
  return bare;
}

void ReadDrawings(const Json& json, SlotData& data) {
  ShapeList stored;
  std::vector<std::string> colours;
  for (const Json& drawing : List(json, "drawings")) {
    if (!drawing.is_object() || stored.Shapes.size() >= std::numeric_limits<std::int16_t>::max()) continue;
    stored.Shapes.push_back(ShapeOf(drawing));
    colours.push_back(Text(drawing, "color"));
  }
  stored.NumShapes = static_cast<std::int16_t>(stored.Shapes.size());
  const Json& size = List(json, "picture");
  if (size.size() == 2 && size[0].is_number_integer() && size[1].is_number_integer())
    StretchShapes(stored, size[0].get<std::int32_t>(), size[1].get<std::int32_t>(), data.PictureWidth,
                  data.PictureHeight);
  std::vector<Shape> here, there;
  for (const Shape& shape : ShapesOf(data.Shapes)) here.push_back(Bare(shape));
  for (const Shape& shape : stored.Shapes) there.push_back(Bare(shape));
  const auto places = PairShapes(there, here, Likeness::Near);
  for (std::size_t i = 0; i < places.size(); ++i) {
    if (!places[i]) continue;
    Shape& shape = data.Shapes.Shapes[*places[i]];
    if (ColourText(shape.Colour) != colours[i]) continue;
    shape.Time = stored.Shapes[i].Time;
    shape.Text = std::move(stored.Shapes[i].Text);
    shape.Width = stored.Shapes[i].Width;
    shape.Steps = stored.Shapes[i].Steps;
    shape.Unknown = std::move(stored.Shapes[i].Unknown);
  }
}

void PutDrawings(Json& json, const SlotData& data) {
  Json drawings = Json::array();
  for (const Shape& shape : ShapesOf(data.Shapes)) {
    if (!HasMore(shape)) continue;
    Json drawing = WithUnknown(shape.Unknown);
    drawing.update(RecordOf(shape));
    if (!shape.Time.Always()) {
      drawing["first"] = shape.Time.First;
      drawing["last"] = shape.Time.Last;
      drawing["fade"] = shape.Time.Fade;
    }
    if (!shape.Text.empty()) drawing["text"] = shape.Text;
    if (shape.Width > 0) drawing["width"] = shape.Width;
    if (shape.Steps) drawing["path"] = {{"first", shape.Steps->First}, {"fields", shape.Steps->Fields ? 1 : 0}};
    drawings.push_back(std::move(drawing));
  }
  if (drawings.empty()) return;
  json["picture"] = {data.PictureWidth, data.PictureHeight};
  json["drawings"] = std::move(drawings);
}

// ---------------------------------------------------------------- the whole

void ReadMarks(const Json& json, StudyData& study) {
  for (const Json& mark : List(json, "marks")) {
    const auto moment = MomentOf(mark);
    if (!moment || study.Marks.size() >= kMostMarks) continue;
    study.Marks.push_back({*moment, Text(mark, "name"), UnknownOf(mark, {"frame", "field", "name"})});
  }
}

void ReadRuler(const Json& json, StudyData& study) {
  const auto found = json.find("ruler");
  if (found == json.end() || !found->is_object()) return;
  constexpr int kWidest = 1 << 16;
  const VideoRuler ruler{Number(*found, "pixelsPerInch", kFastest), Whole(*found, "width", 1, kWidest, 0),
                         Whole(*found, "height", 1, kWidest, 0), Whole(*found, "unit", 0, 3, 0)};
  if (ruler.PixelsPerInch > 0 && ruler.Width > 0 && ruler.Height > 0) study.Ruler = ruler;
}

Json JsonOf(const SlotData& data) {
  const StudyData& study = data.Study;
  Json json = WithUnknown(study.Unknown);
  if (study.TrueRate > 0) json["trueRate"] = study.TrueRate;
  if (study.Ruler)
    json["ruler"] = {{"pixelsPerInch", study.Ruler->PixelsPerInch},
                     {"width", study.Ruler->Width},
                     {"height", study.Ruler->Height},
                     {"unit", study.Ruler->Unit}};
  if (study.LockedAt) PutMoment(json["lockedAt"], *study.LockedAt);
  for (const VideoMark& mark : study.Marks) {
    Json object = WithUnknown(mark.Unknown);
    PutMoment(object, mark.Moment);
    if (!mark.Name.empty()) object["name"] = mark.Name;
    json["marks"].push_back(std::move(object));
  }
  PutDrawings(json, data);
  return json;
}

}  // namespace

std::string StudyPath(std::string_view videoPath) {
  const std::string_view folder = videoPath.substr(0, videoPath.size() - LastName(videoPath).size());
  return std::string(folder) + StudyName(videoPath);
}

void ReadStudy(const std::string& path, SlotData& data) {
  data.Study = {};
  if (!FileExists(path)) return;
  const Json json = ReadJson(path);
  if (!json.is_object()) {
    data.Study.Unread = true;
    return;
  }
  ReadMarks(json, data.Study);
  ReadRuler(json, data.Study);
  data.Study.TrueRate = Number(json, "trueRate", kFastest);
  if (const auto locked = json.find("lockedAt"); locked != json.end()) data.Study.LockedAt = MomentOf(*locked);
  data.Study.Unknown = UnknownOf(json, {"study", "trueRate", "ruler", "lockedAt", "marks", "picture", "drawings"});
  ReadDrawings(json, data);
}

Outcome WriteStudy(const std::string& path, const SlotData& data, IDisk& disk) {
  Json json = JsonOf(data);
  const bool there = FileExists(path);
  if (json.empty() && (!there || data.Study.Unread)) return {};
  std::string old;
  if (data.Study.Unread && there) {
    old = KeptPath(path);
    if (disk.Rename(path, old) < 0) return Outcome::FailedBySystem(errno);
  }
  if (json.empty()) return RemoveTree(path, disk);
  Json whole{{"study", kVersion}};
  whole.update(json);
  Outcome written = WriteWholeFile(path, Written(whole, 1) + "\n", disk);
  if (!written && !old.empty()) disk.Rename(old, path);
  return written;
}

Outcome TrimStudy(const std::string& path, int first, int last) {
  const Json json = FileExists(path) ? ReadJson(path) : Json(Json::value_t::discarded);
  if (!json.is_object()) return {};
  Json cut = json;
  const auto shift = [&](Json& object, const char* name) { object[name] = Whole(object, name, 0, kMost, 0) - first; };
  const auto outside = [&](const Json& object) {
    const auto moment = MomentOf(object);
    return !moment || moment->Frame < first || moment->Frame > last;
  };
  if (const auto locked = cut.find("lockedAt"); locked != cut.end()) {
    if (outside(*locked)) cut.erase("lockedAt");
    else shift(*locked, "frame");
  }
  Json marks = Json::array();
  for (Json mark : List(json, "marks")) {
    if (outside(mark)) continue;
    shift(mark, "frame");
    marks.push_back(std::move(mark));
  }
  cut["marks"] = std::move(marks);
  Json drawings = Json::array();
  for (Json drawing : List(json, "drawings")) {
    if (!drawing.is_object()) continue;
    if (Whole(drawing, "last", 0, kMost, -1) >= 0) {
      // One that is no longer reached stays, on the nearest picture: nobody has asked for it to go.
      const auto within = [&](const char* name) {
        return std::clamp(Whole(drawing, name, 0, kMost, 0), first, last) - first;
      };
      const int from = within("first"), to = within("last");
      drawing["first"] = from;
      drawing["last"] = to;
    }
    if (const auto steps = drawing.find("path"); steps != drawing.end() && steps->is_object())
      (*steps)["first"] = Whole(*steps, "first", -kMost, kMost, 0) - first * (1 + Whole(*steps, "fields", 0, 1, 0));
    drawings.push_back(std::move(drawing));
  }
  cut["drawings"] = std::move(drawings);
  return WriteWholeFile(path, Written(cut, 1) + "\n");
}

}  // namespace kinalyx
