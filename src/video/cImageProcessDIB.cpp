#include "video/cImageProcessDIB.h"

#include "video/FramePipeline.h"

namespace kinalyx {

bool cImageProcessDIB::ProcessImage(const cDIBSection& Source, cDIBSection& Target) const {
  if (!Source.DIBSectionBitsPtr()) return false;
  if (&Target != &Source) Target = Source;
  SoftenField(Target.DIBSectionBitsPtr(), Target.BytesPerScanLine(), Target.Height(), true);
  return true;
}

}  // namespace kinalyx
