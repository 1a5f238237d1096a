#pragma once

#include <cstdint>
#include <memory>

#include "platform/graph/FileLane.h"
#include "platform/graph/FilterBin.h"
#include "platform/graph/GraphFaces.h"
#include "platform/graph/GraphNews.h"
#include "platform/graph/LessonLane.h"
#include "platform/graph/TriggerFaces.h"

namespace kinalyx {

// Where pictures leave a graph. What goes wrong here stays here: the other ways of the same camera go on.

/// Shows them in a window, those that it can keep up with.
/// @param beginNs  nanoseconds of CLOCK_MONOTONIC at which the graph's time was 0
void AppendPreview(FilterBin& bin, std::shared_ptr<RendererFace> face, const GraphNews& news, std::int64_t beginNs);
/// Hands them to a file.
void AppendFile(FilterBin& bin, std::shared_ptr<IPictureLane> lane, std::int64_t beginNs);

/// Has a trigger hear samples.
void AppendHearing(FilterBin& bin, std::shared_ptr<AudioTriggerFace> face, std::int64_t beginNs);

/// Hands pictures of the screen to a lesson.
void AppendLesson(FilterBin& bin, std::shared_ptr<LessonLane> lane, std::int64_t beginNs);
/// Takes samples for a lesson; floating.
GstElement* MakeLessonVoice(std::shared_ptr<LessonLane> lane, std::int64_t beginNs);

}  // namespace kinalyx
