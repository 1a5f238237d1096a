#pragma once

#include <memory>
#include <string>

namespace kinalyx {

/// What text needs of the machine. The running program has it with its application object; without
/// one (tests, small tools) a session brings it, without a display. Make it on the user-interface
/// thread, never before the program's own application object.
class GraphicsSession {
 public:
  GraphicsSession();
  GraphicsSession(GraphicsSession&&) noexcept;
  GraphicsSession& operator=(GraphicsSession&&) noexcept;
  ~GraphicsSession();

 private:
  struct Application;
  std::unique_ptr<Application> application_;
};

/// True while the program can draw and measure text.
bool HasFonts();

struct FontFace {
  std::string family;  ///< empty: the program's own
  double pixels = 12;  ///< size of the letters' square, above 0
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strikeOut = false;
};

/// True when the machine has this family, in any case of letters.
bool FontFamilyExists(const std::string& family);
/// Pixels from one line to the next; 0 without fonts.
double FontLineHeight(const FontFace& face);
/// The family and size of the font that a canvas draws its text with; nothing is set without fonts.
FontFace CanvasFont(int height);

}  // namespace kinalyx
