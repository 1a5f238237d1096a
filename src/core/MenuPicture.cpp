#include "core/MenuPicture.h"

#include <fmt/format.h>

#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"

namespace kinalyx {

namespace {

constexpr const char* kPictureFilter =
    TrLater("All Picture Files (*.bmp;*.jpg;*.gif;*.ico)|*.bmp; *.jpg; *.gif; *.ico");
constexpr std::int32_t kPlaces = 10;
constexpr std::int32_t kPlacesInRow = 3;

bool Choose(IHost& host, Settings& settings, const char* title, const char* folder, std::string& setting,
            IsPicture isPicture) {
  const auto picture = host.PickFile({Tr(title), JoinPath(settings.AppPath, folder), Tr(kPictureFilter)});
  if (!picture) return false;
  const auto shown = host.Drives().Ask(FolderOf(*picture), [isPicture, file = *picture] { return isPicture(file); });
  if (!shown.value_or(false)) {
    host.Message(MessageKind::Warning, Tr(title),
                 shown ? Tr("There is no picture in the file {} that can be shown. The old picture stays.", *picture)
                       : Tr("The drive with the file {} is not answering. The old picture stays.", *picture));
    return false;
  }
  if (!Settings::Holds(*picture)) {
    host.Message(MessageKind::Warning, Tr(title), Settings::TooLongText(*picture));
    return false;
  }
  settings.Set(setting, *picture);
  return true;
}

}  // namespace

std::string DefaultBackground(const Settings& settings) {
  return JoinPath(settings.AppPath, "pictures/backgrounds/bio-guy blue.jpg");
}

Background CheckBackground(IHost& host, Settings& settings) {
  const std::string& chosen = settings.BackgroundPic;
  const auto there = host.Drives().AskAtOnce(FolderOf(chosen), [file = chosen] { return FileIsThere(file); });
  if (there == std::optional(std::optional(true))) return {chosen};
  const std::string standard = DefaultBackground(settings);
  const std::string shown = FileExists(standard) ? standard : std::string();
  if (!there || !*there) return {shown, true};
  // Nothing is gained by resetting the default to itself.
  if (settings.BackgroundPic != standard) {
    host.Message(MessageKind::Warning, "",
                 Tr("Unable to locate the background picture named {}. The default picture will be reset.",
                    settings.BackgroundPic));
    settings.Set(settings.BackgroundPic, standard);
  }
  return {shown};
}

bool ChooseBackground(IHost& host, Settings& settings, IsPicture isPicture) {
  return Choose(host, settings, TrLater("Background Picture"), "pictures/backgrounds", settings.BackgroundPic,
                isPicture);
}

bool ChooseLogo(IHost& host, Settings& settings, IsPicture isPicture) {
  return Choose(host, settings, TrLater("Logo"), "pictures", settings.LogoName, isPicture);
}

void ResetBackground(Settings& settings) { settings.Set(settings.BackgroundPic, DefaultBackground(settings)); }

void ResetLogo(Settings& settings) { settings.Set(settings.LogoName, JoinPath(settings.AppPath, "pictures/Logo.jpg")); }

void NextCaptionPosition(Settings& settings) {
  const std::int32_t next = settings.CaptionPosition + 1;
  settings.Set(settings.CaptionPosition, next < 1 || next > kPlaces ? 1 : next);
}

CaptionPlace PlaceOfCaption(std::int32_t position) {
  if (position == kPlaces) return {1, 1};
  const std::int32_t place = position < 1 || position > kPlaces ? 0 : position - 1;
  const int row = place / kPlacesInRow;
  return {place % kPlacesInRow / 4.0, row / 2.0};
}

}  // namespace kinalyx
