#include <fmt/format.h>

#include "core/Heading.h"
#include "core/MenuPicture.h"
#include "core/LibraryPath.h"
#include "core/Settings.h"
#include "platform/files/Folders.h"

namespace kinalyx {

/// The one list of keys: their order in the file, what a first run writes, and the member that holds each.
/// There is no default on reading.
std::vector<Settings::Key> Settings::ConfigKeys() {
  std::vector<Key> keys;
  std::string section;
  const auto add = [&](std::string name, std::string firstRun, Member member) {
    keys.push_back({section, std::move(name), std::move(firstRun), member});
  };

  section = "General";
  add("WindowMode", "1", &WindowMode);
  add("ScreenMode", "1", &ScreenMode);
  add("UserName", "", &UserName);
  add("CompanyName", kNoCompany, &CompanyName);
  add("UseNetwork", "False", &UseNetwork);
  add("LibraryPath", LocalLibraryPath(*this), &LibraryPath);
  add("Logo", "True", &Logo);
  add("LogoName", JoinPath(AppPath, "pictures/Logo.jpg"), &LogoName);
  add("BackgroundPic", DefaultBackground(*this), &BackgroundPic);
  add("CaptionPosition", "1", &CaptionPosition);
  const HeadingLines heading = FirstHeading();
  for (std::size_t i = 1; i <= kHeadingLines; ++i) add(fmt::format("Heading{}", i), heading[i - 1], &Heading[i]);
  add("Exporter", "A:\\", &Exporter);
  add("CDBurner", "0", &CDBurner);
  add("UpdateCheck", "0", &UpdateCheck);
  add("RestartOption", "0", &RestartOption);

  section = "VidCap";
  add("ImportCaptureMode", "True", &ImportCaptureMode);
  add("VideoInSource", "25", &VideoInSource);
  add("DVMode", "True", &DVMode);
  add("NameMode", "2", &NameMode);
  add("ImportFolder", "", &ImportFolder);
  add("AutoImportFolder", "", &AutoImportFolder);
  add("CapMode", "1", &CapMode);
  add("BeepPausetime", "10", &BeepPausetime);
  add("BeepCapTime", "5", &BeepCapTime);
  add("BeepCycles", "5", &BeepCycles);
  add("OneCam", "True", &OneCam);
  add("TriggerLevel", "50", &TriggerLevel);
  add("SoundLevel", "50", &SoundLevel);
  add("TriggerTime0", "15", &TriggerTime[0]);
  add("TriggerTime1", "10", &TriggerTime[1]);
  add("OneClickTime", "25", &OneClickTime);
  add("CameraSelect", "0", &CameraSelect);
  add("CamExt", "FO", &CamExt);
  add("ReverseFields", "False", &ReverseFields);
  add("SplitFields", "True", &SplitFields);
  add("Recompress", "True", &Recompress);
  add("HDReverseFields", "False", &HDReverseFields);
  add("HDSplitFields", "False", &HDSplitFields);
  add("HDRecompress", "True", &HDRecompress);
  add("AutoReverseFields", "False", &AutoReverseFields);
  add("AutoSplitFields", "False", &AutoSplitFields);
  add("AutoRecompress", "True", &AutoRecompress);
  add("AnalogResize", "True", &AnalogResize);
  add("HDResize", "True", &HDResize);
  add("AutoResize", "True", &AutoResize);
  add("RealFR", "30", &RealFR);
  add("HDRealFR", "30", &HDRealFR);
  add("AutoRealFR", "30", &AutoRealFR);
  add("KeepPictureSize", "1", &KeepPictureSize);
  add("ImportEdge", "0", &ImportEdge);

  section = "Analysis";
  add("GridSize", "50", &GridSize);
  add("SlomoSpeed", "25", &SlomoSpeed);
  add("CadWidth", "5", &CadWidth);
  add("CadOutline", "True", &CadOutline);
  add("RandomColor", "0", &RandomColor);
  // Freehand, plus, square, line, circle, angle, path, parallelogram, zone, clock, arrow, grid, no button.
  const char* const kColours[] = {"&HC0C000", "&HFFFF&",  "&H8000&", "&HFF0000", "&HFF&",       "&HFF00&", "&HFFFF&",
                                  "&HFF&",    "&HFF0000", "&HFFFF&", "&HFF&",    "&H00800000&", "&HFFFF&"};
  for (std::size_t i = 0; i < NewColors.size(); ++i) add(fmt::format("NewColor{}", i), kColours[i], &NewColors[i]);
  add("StrobeStep", "1", &StrobeStep);
  add("OpenDlgChoice", "0", &OpenDlgChoice);
  add("VideoFit", "1", &VideoFit);
  add("SoundVolume", "80", &SoundVolume);
  add("BarPictures", "1", &BarPictures);
  add("ShortGame", "0", &ShortGame);
  // What is 0 where the file of an older version has no such key, and works there as it did.
  add("LockByTime", "1", &LockByTime);
  add("ShapeLabels", "1", &ShapeLabels);
  add("AngleFrom", "0", &AngleFrom);
  add("SpeedUnit", "0", &SpeedUnit);
  add("KeysAndTools", "0", &KeysAndTools);

  section = "Ruler";
  add("CalibNumber", "0", &CalibNumber);
  add("CalibNumberOut", "0", &CalibNumberOut);
  add("CalibWidth", "0", &CalibWidth);
  add("CalibHeight", "0", &CalibHeight);
  add("CalibInput", "1", &CalibInput);
  add("CalibOutput", "1", &CalibOutput);
  add("RulerPerVideo", "1", &RulerPerVideo);
  add("NTSCorPAL", "0", &NTSCorPAL);

  section = "Layout";
  add("Design", "0", &Design);
  add("PrimaryName0", "Student", &PrimaryName[0]);
  add("PrimaryName1", "student", &PrimaryName[1]);
  add("PrimaryName2", "students", &PrimaryName[2]);
  add("WindowInfo0", "0", &WindowInfo[0]);
  add("WindowInfo1", "0", &WindowInfo[1]);
  add("WindowInfo2", "12000", &WindowInfo[2]);
  add("WindowInfo3", "9000", &WindowInfo[3]);
  add("LastInstructor", "", &LastInstructor);
  add("LastStudent", "", &LastStudent);
  add("StripRows", "0", &StripRows);
  add("CardPlaces", "", &CardPlaces);
  add("Language", "", &Language);
  section = "VidCap";
  for (std::size_t i = 0; i < NetworkCamera.size(); ++i)
    add(fmt::format("NetworkCamera{}", i + 1), "", &NetworkCamera[i]);
  add("RemoteKeys", "PageDown, B", &RemoteKeys);
  return keys;
}

std::vector<Settings::Key> Settings::CaptureKeys() {
  const CaptureLists& lists = captureLists;
  return {
      {"General", "Camera1", "", &Camera[0]},
      {"General", "Camera2", "", &Camera[1]},
      {"General", "Camera1Size", lists.size[0], &CameraSize[0]},
      {"General", "Camera2Size", lists.size[1], &CameraSize[1]},
      {"General", "Camera1Input", lists.input[0], &CameraInput[0]},
      {"General", "Camera2Input", lists.input[1], &CameraInput[1]},
      {"General", "Camera1Format", lists.format[0], &CameraFormat[0]},
      {"General", "Camera2Format", lists.format[1], &CameraFormat[1]},
      {"General", "SoundCardSource", lists.soundSource, &SoundCardSource},
      {"General", "SoundCardInput", lists.soundInput, &SoundCardInput},
  };
}

}  // namespace kinalyx
