#include "capture/SourceKinds.h"

#include <algorithm>
#include <array>

#include "platform/files/Tr.h"

namespace kinalyx {

namespace {

constexpr std::array<SourceWords, 5> kKinds{{
    {SourceKind::Firewire, TrLater("Firewire Camera(s)"), TrLater("DV Camcorder"), "dv.svg",
     TrLater("Firewire camcorders are a great solution to use with the Kinalyx software (you will know you have the "
             "right type "
             "of camera if it uses dv tapes). Using firewire has many advantages for video analysis, and is the only "
             "type of "
             "camera that utilizes ALL of the Kinalyx features.\n\nConnect the camcorder and turn it on before you "
             "start the "
             "program. It captures 60 frames per second.")},
    {SourceKind::Webcam, TrLater("Webcam, Tuner Card/Cable"), TrLater("Webcam or Analog Capture Card"), "another.svg",
     TrLater("Use the 'Webcam and Tuner' selection if you are using a webcam, tuner\\video capture card, or tuner "
             "cable. To "
             "get "
             "started, click the button below and choose the webcam or tuner card from the dropdown list.\n\nA "
             "telephone on a "
             "tripod that shows its picture on the network is a camera for Kinalyx too: give its address under Cameras "
             "on the "
             "Network.")},
    {SourceKind::HighDefImport, TrLater("High Def Camera Import"), TrLater("High Definition Camera"), "hdcam.svg",
     TrLater(
         "A high definition camera stores its videos as files. Connect it to the computer, choose its folder, usually "
         "F:\\DCIM\\VIDEO or DCIM on its card, and Kinalyx converts the videos into the student's folder.")},
    {SourceKind::AutoImport, TrLater("High Def Automatic Import"), TrLater("Automatic Import Folder"),
     "videofolder.svg",
     TrLater("Kinalyx watches a folder. Each video that arrives there is converted and kept under the next name, while "
             "you go "
             "on teaching.")},
    {SourceKind::ManualImport, TrLater("Manually Import Video"), TrLater("Manually Import Video"), "videofolder.svg",
     TrLater("Pick the videos by hand, cut off what is too much, and Kinalyx keeps them in the student's folder.")},
}};

}  // namespace

std::span<const SourceWords> SourceKinds() { return kKinds; }

const SourceWords& WordsOf(SourceKind kind) {
  const auto found = std::ranges::find(kKinds, kind, &SourceWords::kind);
  return found == kKinds.end() ? kKinds.back() : *found;
}

}  // namespace kinalyx
