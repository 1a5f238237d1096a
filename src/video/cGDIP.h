#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/paint/Fonts.h"
#include "platform/paint/ImageFiles.h"

namespace kinalyx {

/// What the last call on a picture, a drawing or a font came to.
enum class GdipStatus : int {
  Ok = 0,
  GenericError,
  InvalidParameter,
  OutOfMemory,
  ObjectBusy,
  InsufficientBuffer,
  NotImplemented,
  Win32Error,
  WrongState,
  Aborted,
  FileNotFound,
  ValueOverflow,
  AccessDenied,
  UnknownImageFormat,
  FontFamilyNotFound,
  FontStyleNotFound,
  NotTrueTypeFont,
  UnsupportedGdiplusVersion,
  GdiplusNotInitialized,
  PropertyNotFound,
  PropertyNotSupported,
};

/// The status that tells of a fault with an image file.
GdipStatus StatusOf(ImageFault fault);

/// The session with the graphics library: what text needs of the machine, and the list of image
/// encoders. Made before the first cFont and cGraphics that draws text, on the user-interface thread.
class cGDIP {
 public:
  cGDIP();

  /// The text of a status; empty for Ok.
  static std::string Error(GdipStatus Status);
  /// True when an encoder writes files of this extension: "jpg", ".jpg" and "*.jpg", in either case.
  bool ExtensionExists(std::string_view Extension) const;

 private:
  GraphicsSession session_;
  std::vector<std::string> encoders_;  ///< one list of patterns per encoder, split at ';'
};

}  // namespace kinalyx
