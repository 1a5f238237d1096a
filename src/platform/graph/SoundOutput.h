#pragma once

#include <memory>

#include "platform/graph/ISoundOutput.h"

namespace kinalyx {

/// Plays on the sound card or server that the machine offers. A thread of its own reads, decodes and waits for the
/// server; it is made with the first sound. One that hangs on a silent drive or server is left to itself, so the end
/// of the program never waits for it.
class SoundOutput final : public ISoundOutput {
 public:
  /// @param sink  where the sound ends, as the library for graphs describes it
  explicit SoundOutput(std::string sink = "autoaudiosink");
  ~SoundOutput() override;

  void Play(const std::string& path, double fromMs, int volume) override;
  void Stop() override;
  void SetVolume(int volume) override;

 private:
  struct Desk;
  std::shared_ptr<Desk> desk_;  ///< shared with the thread, which may outlive this
};

}  // namespace kinalyx
