#pragma once

#include <memory>

#include "platform/graph/CapsPlug.h"
#include "platform/graph/FilterTable.h"

namespace kinalyx {

/// Decodes or compresses what comes into the form in which an element takes pictures.
std::shared_ptr<ICapsChooser> ChooseEntry(FilterEntry entry);
/// What goes to a file: what is compressed stays as it came, and so do raw pictures of up to 640 x 480; a disk could
/// not follow larger ones, which become JPEG.
std::shared_ptr<ICapsChooser> ChooseForFile();
/// Planes of bytes for the painter of a preview.
std::shared_ptr<ICapsChooser> ChooseForPreview();

}  // namespace kinalyx
