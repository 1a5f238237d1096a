#pragma once

#include <string>

#include "platform/paint/ImageFiles.h"
#include "platform/paint/Surface.h"

namespace kinalyx {

/// Writes a picture that the workspace made: a name that ends in .jpg or .jpeg, in either case, gives a
/// JPEG file, any other a PNG file. The file holds the old or the new picture, whatever happens.
Outcome ExportPicture(const Surface& picture, const std::string& path);

}  // namespace kinalyx
