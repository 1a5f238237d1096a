#include "distribution/lessons/LessonPhase.h"

#include <array>
#include <cstddef>

namespace kinalyx {
namespace {

struct Words {
  std::string_view caption, title, status;
};

// In the order of the phases.
constexpr std::array kWords{
    Words{"Start Recording", "Record Lesson", ""},
    Words{"Start Recording", "Record Lesson", "Ready to Record Lesson"},
    Words{"Stop Recording", "Recording Sound and Video", "Preparing to Record...."},
    Words{"Stop Recording", "Recording Sound and Video", "Recording...."},
    Words{"Stop Recording", "Recording Paused", "Paused"},
    Words{"Finished Recording", "Recording Complete!", "Click Save Video to continue.."},
    Words{"Finished Recording", "Recording Complete!", "Saving Video.... Please Wait."},
};

const Words& WordsOf(LessonPhase phase) { return kWords[static_cast<std::size_t>(phase)]; }

}  // namespace

std::string_view CaptionOf(LessonPhase phase) { return WordsOf(phase).caption; }
std::string_view TitleOf(LessonPhase phase) { return WordsOf(phase).title; }
std::string_view StatusOf(LessonPhase phase) { return WordsOf(phase).status; }

}  // namespace kinalyx
