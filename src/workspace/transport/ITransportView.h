#pragma once

#include <string>
#include <vector>

namespace kinalyx {

/// A mark as the play bar shows it.
struct ShownMark {
  int position = 0;
  std::string name;

  friend bool operator==(const ShownMark&, const ShownMark&) = default;
};

/// What the transport asks of the window with the play bar.
class ITransportView {
 public:
  virtual ~ITransportView() = default;
  /// Where a slot's video stands: shown under its picture while the play bar is elsewhere. An empty slot
  /// has an empty line.
  virtual void SetCellPosition(int slot, int position, int maximum, const std::string& line) = 0;
  virtual void SetScrollRange(int minimum, int maximum) = 0;
  virtual void SetScrollValue(int position) = 0;
  /// The part of the current video that is played; from its first to its last position for the whole.
  virtual void SetPlayRange(int first, int last) = 0;
  virtual void SetPlayPicture(bool playing) = 0;
  virtual void SetSlomoButton(bool down) = 0;
  /// Percent of the video's own speed.
  virtual void SetSpeed(int percent) = 0;
  virtual void SetLoopButton(bool down) = 0;
  /// The transport's line, and the frame counter's text (empty: not shown).
  virtual void SetDisplayLine(const std::string& line, const std::string& counter) = 0;
  /// Marks of the current slot; empty hides the mark box.
  virtual void SetMarks(const std::vector<ShownMark>& marks) = 0;
  /// A text over the current picture, such as the tool's caption; empty hides it.
  virtual void SetDisplayText(const std::string& text) = 0;
  virtual void ShowVideoTimer(bool shown) = 0;
  /// The reading, in the second colour when negative, and the rate in its box.
  virtual void SetVideoTimer(const std::string& reading, bool negative, const std::string& rate) = 0;
};

}  // namespace kinalyx
