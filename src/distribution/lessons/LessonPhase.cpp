#include "distribution/lessons/LessonPhase.h"

#include <array>
#include <cstddef>

#include "platform/files/Tr.h"

namespace kinalyx {
namespace {

struct Words {
  std::string_view caption, title, status;
};

// In the order of the phases.
constexpr std::array kWords{
    Words{TrLater("Start Recording"), TrLater("Record Lesson"), ""},
    Words{TrLater("Start Recording"), TrLater("Record Lesson"), TrLater("Ready to Record Lesson")},
    Words{TrLater("Stop Recording"), TrLater("Recording Sound and Video"), TrLater("Preparing to Record....")},
    Words{TrLater("Stop Recording"), TrLater("Recording Sound and Video"), TrLater("Recording....")},
    Words{TrLater("Stop Recording"), TrLater("Recording Paused"), TrLater("Paused")},
    Words{TrLater("Finished Recording"), TrLater("Recording Complete!"), TrLater("Click Save Video to continue..")},
    Words{TrLater("Finished Recording"), TrLater("Recording Complete!"), TrLater("Saving Video.... Please Wait.")},
};

const Words& WordsOf(LessonPhase phase) { return kWords[static_cast<std::size_t>(phase)]; }

}  // namespace

std::string CaptionOf(LessonPhase phase) { return Tr(std::string(WordsOf(phase).caption)); }
std::string TitleOf(LessonPhase phase) { return Tr(std::string(WordsOf(phase).title)); }
std::string StatusOf(LessonPhase phase) { return Tr(std::string(WordsOf(phase).status)); }

}  // namespace kinalyx
