#pragma once

#include <gst/gst.h>

#include <string>

namespace kinalyx {

/// Why a source has failed, in words for the user.
/// @param given  it has given something before
std::string WordsForFailure(GstMessage* error, bool camera, bool given);

/// Of a source that has come to its end, and of one that goes on and gives nothing.
std::string WordsForEnd(bool camera);
std::string WordsForSilence(bool camera);

}  // namespace kinalyx
