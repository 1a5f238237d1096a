#include "platform/graph/SoundLines.h"

#include <pulse/context.h>
#include <pulse/error.h>
#include <pulse/introspect.h>
#include <pulse/mainloop.h>
#include <pulse/operation.h>

#include <algorithm>
#include <chrono>
#include <memory>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto kPatience = 2s;

struct Unmake {
  void operator()(pa_mainloop* loop) const { pa_mainloop_free(loop); }
  void operator()(pa_context* context) const {
    pa_context_disconnect(context);
    pa_context_unref(context);
  }
  void operator()(pa_operation* operation) const { pa_operation_unref(operation); }
};

/// A talk with the sound server, which ends after a while whether it answers or not.
class SoundTalk {
 public:
  SoundTalk() : loop_(pa_mainloop_new()), context_(pa_context_new(pa_mainloop_get_api(loop_.get()), "Kinalyx")) {}

  Outcome Begin() {
    if (pa_context_connect(context_.get(), nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0) return Failure();
    const bool came = WaitUntil([this] {
      const pa_context_state_t state = pa_context_get_state(context_.get());
      return state == PA_CONTEXT_READY || !PA_CONTEXT_IS_GOOD(state);
    });
    return came && pa_context_get_state(context_.get()) == PA_CONTEXT_READY ? Outcome() : Failure();
  }

  std::map<std::string, SoundLines> Lines() {
    std::map<std::string, SoundLines> lines;
    const auto take = [](pa_context*, const pa_source_info* source, int end, void* to) {
      if (end || !source || source->n_ports < 2) return;
      SoundLines& found = (*static_cast<std::map<std::string, SoundLines>*>(to))[source->name];
      for (std::uint32_t i = 0; i < source->n_ports; ++i) {
        found.names.emplace_back(source->ports[i]->name);
        found.titles.emplace_back(source->ports[i]->description);
      }
      if (source->active_port) found.active = source->active_port->description;
    };
    return Ends(pa_context_get_source_info_list(context_.get(), take, &lines)) ? lines
                                                                               : std::map<std::string, SoundLines>();
  }

  Outcome SetLine(const std::string& microphone, const std::string& name) {
    int taken = 0;
    const auto take = [](pa_context*, int success, void* to) { *static_cast<int*>(to) = success; };
    const bool over =
        Ends(pa_context_set_source_port_by_name(context_.get(), microphone.c_str(), name.c_str(), take, &taken));
    return over && taken ? Outcome() : Failure();
  }

 private:
  template <typename What>
  bool WaitUntil(What what) {
    while (!what()) {
      const auto left = std::chrono::duration_cast<std::chrono::microseconds>(end_ - Clock::now());
      if (left <= 0us || pa_mainloop_prepare(loop_.get(), static_cast<int>(left.count())) < 0 ||
          pa_mainloop_poll(loop_.get()) < 0 || pa_mainloop_dispatch(loop_.get()) < 0)
        return false;
    }
    return true;
  }
  bool Ends(pa_operation* begun) {
    const std::unique_ptr<pa_operation, Unmake> operation(begun);
    if (!operation) return false;
    if (WaitUntil([&] { return pa_operation_get_state(operation.get()) != PA_OPERATION_RUNNING; })) return true;
    pa_operation_cancel(operation.get());  // it would write where nobody is any more
    return false;
  }
  Outcome Failure() const {
    const int error = pa_context_errno(context_.get());
    return Outcome::Failed(error == PA_OK ? Tr("The sound server does not answer.") : pa_strerror(error));
  }

  const Clock::time_point end_ = Clock::now() + kPatience;
  std::unique_ptr<pa_mainloop, Unmake> loop_;
  std::unique_ptr<pa_context, Unmake> context_;
};

}  // namespace

std::map<std::string, SoundLines> ReadSoundLines() {
  SoundTalk talk;
  return talk.Begin() ? talk.Lines() : std::map<std::string, SoundLines>();
}

Outcome SetSoundLine(const std::string& microphone, const std::string& title) {
  SoundTalk talk;
  if (const Outcome begun = talk.Begin(); !begun) return begun;
  const SoundLines lines = talk.Lines()[microphone];
  const auto found = std::ranges::find(lines.titles, title);
  if (found == lines.titles.end()) return {Fault::NotFound, Tr("The microphone has no such line.")};
  return talk.SetLine(microphone, lines.names[static_cast<std::size_t>(found - lines.titles.begin())]);
}

}  // namespace kinalyx
