#pragma once

#include <string>

#include "platform/paint/Surface.h"

namespace kinalyx::test {

/// The picture in a file; empty when there is none.
Surface LoadPicture(const std::string& path);

}  // namespace kinalyx::test
