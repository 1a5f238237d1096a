#pragma once

#include <gst/gst.h>

#include <string>
#include <string_view>

#include "platform/graph/IScreens.h"

namespace kinalyx {

// Screens as devices: a name that stands for a screen goes where a camera's does. Only for the sources of this room.

/// A part of the screen of an X server, in its own pixels.
std::string NameOfX11Screen(const ScreenPlace& place);
/// What PipeWire gives: the connection, which its user copies, and the node there.
std::string NameOfPipeWireScreen(int connection, unsigned node);

bool IsScreenName(std::string_view name);
/// An element with one source pad, floating; null where the library lacks a part or the name is none.
GstElement* MakeScreenSource(const std::string& name);

}  // namespace kinalyx
