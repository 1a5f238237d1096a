#pragma once

#include <gst/gst.h>

#include <vector>

#include "platform/graph/IDevices.h"

namespace kinalyx {

/// A camera for who has none at hand: pictures of TestPicture, as punctual as a good camera's. Only for the sources of
/// this room.
const std::vector<PictureMode>& TestCameraModes();

/// Floating; null where the library lacks a part.
/// @param mode  one of its modes
GstElement* MakeTestCamera(const PictureMode& mode);

}  // namespace kinalyx
