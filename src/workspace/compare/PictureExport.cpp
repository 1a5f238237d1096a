#include "workspace/compare/PictureExport.h"

#include <algorithm>
#include <cctype>

#include "platform/files/Tr.h"
#include "platform/paint/PixelOps.h"

namespace kinalyx {
namespace {

constexpr int kQuality = 92;  // of JPEG files

bool EndsWith(const std::string& path, const std::string& ending) {
  return path.size() >= ending.size() &&
         std::equal(ending.rbegin(), ending.rend(), path.rbegin(),
                    [](char wanted, char found) { return wanted == std::tolower(static_cast<unsigned char>(found)); });
}

}  // namespace

Outcome ExportPicture(const Surface& picture, const std::string& path) {
  if (picture.Empty()) return Outcome::Failed(Tr("There is no picture to save."));
  const bool jpeg = EndsWith(path, ".jpg") || EndsWith(path, ".jpeg");
  return jpeg ? SaveJpeg(RowsOf(picture), path, kQuality) : SavePng(RowsOf(picture), path);
}

}  // namespace kinalyx
