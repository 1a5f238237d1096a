#pragma once

#include <gst/gst.h>

#include <string>

namespace kinalyx {

/// Why a source has failed, in words for the user.
/// @param given  it has given something before
std::string WordsForFailure(GstMessage* error, bool camera, bool given);

}  // namespace kinalyx
