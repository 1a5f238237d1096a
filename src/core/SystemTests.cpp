#include "core/SystemTests.h"

#include <algorithm>
#include <fmt/format.h>

#include "core/WindowModes.h"
#include "platform/files/Folders.h"
#include "platform/files/Tr.h"
#include "platform/host/DriveWatch.h"

namespace kinalyx {

namespace {

SystemTestRow Row(const char* title, std::string text, bool good, int percent) {
  return {Tr(title), std::move(text), good ? kGaugeGreen : kGaugeRed, percent};
}

SystemTestRow Unknown(const char* title) { return {Tr(title), Tr("Unknown"), kGaugeRed, 0}; }

SystemTestRow RateColours(int bits) {
  const int percent = bits >= 24 ? 100 : bits >= 16 ? 75 : 25;
  return Row(TrLater("Video Colors"), Tr("{} Bit", bits), bits >= 16, percent);
}

SystemTestRow RateDisk(std::int64_t freeBytes) {
  if (freeBytes < 0) return Unknown(TrLater("Hard Disk Space"));
  const std::int64_t megabytes = freeBytes / (1024 * 1024);
  const int percent = megabytes < 500 ? 25 : megabytes < 1000 ? 50 : megabytes <= 2000 ? 75 : 100;
  return Row(TrLater("Hard Disk Space"), fmt::format("{} MB", megabytes), megabytes >= 500, percent);
}

SystemTestRow RateScreen(const MachineFigures& figures) {
  const int width = figures.system.screenWidth;
  const int height = figures.system.screenHeight;
  const bool good = width >= figures.neededWidth && height >= figures.neededHeight;
  return Row(TrLater("Screen Mode"), fmt::format("{}x{}", width, height), good, good ? 100 : 25);
}

SystemTestRow RateProcessor(int megahertz) {
  if (megahertz <= 0) return Unknown(TrLater("Processor Speed"));
  const int percent = megahertz <= 350 ? 25 : megahertz < 501 ? 50 : megahertz < 701 ? 75 : 100;
  return Row(TrLater("Processor Speed"), fmt::format("{}", megahertz), megahertz > 349, percent);
}

SystemTestRow RateMemory(std::int64_t kilobytes) {
  const int percent = kilobytes <= 128000 ? 25 : kilobytes < 256000 ? 75 : 100;
  return Row(TrLater("System Ram"), fmt::format("{}K", kilobytes), kilobytes > 128000, percent);
}

}  // namespace

std::array<SystemTestRow, 5> RateMachine(const MachineFigures& figures) {
  return {RateColours(figures.system.bitsPerPixel), RateDisk(figures.freeBytes), RateScreen(figures),
          RateProcessor(figures.system.processorMHz), RateMemory(figures.system.ramKilobytes)};
}

std::array<SystemTestRow, 5> SystemTests(IHost& host, const Settings& settings) {
  MachineFigures figures;
  figures.system = host.System();
  const auto free = [folder = settings.LibraryPath] { return FreeBytes(folder); };
  figures.freeBytes = host.Drives().Ask(settings.LibraryPath, free).value_or(-1);
  const WindowPlace window = PlaceForMode(settings.WindowMode, figures.system.screenWidth, figures.system.screenHeight);
  if (!window.fullScreen) {
    figures.neededWidth = std::max(figures.neededWidth, window.width / kTwipsPerPixel);
    figures.neededHeight = std::max(figures.neededHeight, window.height / kTwipsPerPixel);
  }
  return RateMachine(figures);
}

}  // namespace kinalyx
