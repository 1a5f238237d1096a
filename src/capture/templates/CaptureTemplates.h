#pragma once

#include <string_view>

namespace kinalyx {

// The texts of all graphs, each one line in iso-8859-1. What is written in them for a file is a stand-in that is
// replaced before the graph runs.

extern const std::string_view MVHeader;  ///< what every text begins with, and no graph

// Seen, and written from one click to the next.
extern const std::string_view MVOneCamSS;
extern const std::string_view MVOneCamSSAN;
extern const std::string_view MVTwoCamSS;

// Seen and remembered for some seconds; a trigger has them written.
extern const std::string_view MVOneCamAutoDV;
extern const std::string_view MVOneCamAuto;
extern const std::string_view MVOneCamClickDV;
extern const std::string_view MVOneCamClickAN;
extern const std::string_view MVTwoCamAutoDV;
extern const std::string_view MVTwoCamAutoAN;
extern const std::string_view MVTwoCamClickDV;
extern const std::string_view MVTwoCamClickAN;

extern const std::string_view MVSetupGraph;         ///< connects nothing: lists of devices need something to talk to
extern const std::string_view MVMotionDraw;         ///< drawing upon a live picture, as in a mirror
extern const std::string_view MVMotionDraw2;        ///< the same, as the others see it
extern const std::string_view MVScreenRecorder;     ///< a lesson: the screen with the voice
extern const std::string_view MVScreenRecorderMp4;  ///< the same, as telephones play it

// Conversion: by what the source is, and what it becomes.
extern const std::string_view MVConvertSFAMJPGtoIV50;
extern const std::string_view MVConvertSFAMJPGtoDVEdge;
extern const std::string_view MVConvertSFAMJPGtoDV;
extern const std::string_view MVConvertSFAtoIV50;
extern const std::string_view MVConvertSFAtoDVEdge;
extern const std::string_view MVConvertSFAtoDV;
extern const std::string_view MVConvertHaalitoIV50;
extern const std::string_view MVConvertHaalitoDVEdge;
extern const std::string_view MVConvertHaalitoDV;

}  // namespace kinalyx
