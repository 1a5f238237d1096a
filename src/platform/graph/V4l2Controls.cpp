#include "platform/graph/V4l2Controls.h"

#include <fcntl.h>
#include <linux/videodev2.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>

#include <fmt/format.h>

namespace kinalyx {
namespace {

constexpr int kMostChoices = 64;  // of a menu; a damaged driver may promise any number
constexpr int kMostControls = 256;

class ControlFile final : public IControlDevice {
 public:
  explicit ControlFile(int file) : file_(file) {}
  ~ControlFile() override { close(file_); }
  ControlFile(const ControlFile&) = delete;
  ControlFile& operator=(const ControlFile&) = delete;

  int Ask(unsigned long request, void* argument) override {
    int answer = 0;
    do {
      answer = ioctl(file_, request, argument);
    } while (answer < 0 && errno == EINTR);
    return answer < 0 ? errno : 0;
  }

 private:
  int file_;
};

/// A text of fixed length, which need not end.
template <typename Letters>
std::string Text(const Letters& letters) {
  const auto* begin = reinterpret_cast<const char*>(letters);
  return std::string(begin, std::find(begin, begin + sizeof(letters), '\0'));
}

std::vector<std::string> Choices(IControlDevice& device, const v4l2_queryctrl& query) {
  std::vector<std::string> choices;
  for (int i = 0; i <= std::min(query.maximum, kMostChoices); ++i) {
    v4l2_querymenu item{};
    item.id = query.id;
    item.index = static_cast<std::uint32_t>(i);
    const bool there = i >= query.minimum && device.Ask(VIDIOC_QUERYMENU, &item) == 0;
    if (!there) {
      choices.emplace_back();
    } else if (query.type == V4L2_CTRL_TYPE_INTEGER_MENU) {
      choices.push_back(fmt::format("{}", std::int64_t{item.value}));
    } else {
      choices.push_back(Text(item.name));
    }
  }
  return choices;
}

std::optional<CameraControl> Control(IControlDevice& device, const v4l2_queryctrl& query) {
  if (query.flags & (V4L2_CTRL_FLAG_DISABLED | V4L2_CTRL_FLAG_READ_ONLY | V4L2_CTRL_FLAG_WRITE_ONLY)) return {};
  CameraControl control;
  switch (query.type) {
    case V4L2_CTRL_TYPE_INTEGER: control.kind = CameraControl::Kind::Number; break;
    case V4L2_CTRL_TYPE_BOOLEAN: control.kind = CameraControl::Kind::Switch; break;
    case V4L2_CTRL_TYPE_MENU:
    case V4L2_CTRL_TYPE_INTEGER_MENU:
      control.kind = CameraControl::Kind::Choice;
      control.choices = Choices(device, query);
      break;
    default:  // headings, buttons, texts, 64 bits
      return {};
  }
  control.id = query.id;
  control.name = Text(query.name);
  control.low = query.minimum;
  control.high = query.maximum;
  control.step = std::max(query.step, 1);
  control.standard = query.default_value;
  control.active = !(query.flags & (V4L2_CTRL_FLAG_INACTIVE | V4L2_CTRL_FLAG_GRABBED));
  v4l2_control value{};
  value.id = query.id;
  if (device.Ask(VIDIOC_G_CTRL, &value) != 0) return {};
  control.value = value.value;
  return control;
}

}  // namespace

std::unique_ptr<IControlDevice> OpenControlDevice(const std::string& path) {
  const int file = open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
  return file < 0 ? nullptr : std::make_unique<ControlFile>(file);
}

std::vector<CameraControl> ReadControls(IControlDevice& device) {
  std::vector<CameraControl> controls;
  if (auto inputs = ReadInputs(device); !inputs.empty()) {
    CameraControl input;
    input.id = kInputControl;
    input.name = "Input";
    input.kind = CameraControl::Kind::Choice;
    input.high = static_cast<int>(inputs.size()) - 1;
    input.choices = std::move(inputs);
    if (device.Ask(VIDIOC_G_INPUT, &input.value) == 0) controls.push_back(std::move(input));
  }
  v4l2_queryctrl query{};
  query.id = V4L2_CTRL_FLAG_NEXT_CTRL;
  for (int i = 0; i < kMostControls && device.Ask(VIDIOC_QUERYCTRL, &query) == 0; ++i) {
    if (auto control = Control(device, query)) controls.push_back(std::move(*control));
    query.id |= V4L2_CTRL_FLAG_NEXT_CTRL;
  }
  return controls;
}

Outcome WriteControl(IControlDevice& device, std::uint32_t id, int value) {
  int fault = 0;
  if (id == kInputControl) {
    fault = device.Ask(VIDIOC_S_INPUT, &value);
  } else {
    v4l2_control control{};
    control.id = id;
    control.value = value;
    fault = device.Ask(VIDIOC_S_CTRL, &control);
  }
  return fault == 0 ? Outcome() : Outcome::FailedBySystem(fault);
}

std::vector<std::string> ReadInputs(IControlDevice& device) {
  std::vector<std::string> inputs;
  for (int i = 0; i < kMostChoices; ++i) {
    v4l2_input input{};
    input.index = static_cast<std::uint32_t>(i);
    if (device.Ask(VIDIOC_ENUMINPUT, &input) != 0) break;
    inputs.push_back(Text(input.name));
  }
  return inputs.size() > 1 ? inputs : std::vector<std::string>();
}

}  // namespace kinalyx
