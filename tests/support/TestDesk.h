#pragma once

#include <optional>
#include <string>

#include "core/Settings.h"
#include "platform/files/IniFile.h"
#include "support/TempFolder.h"
#include "support/TestHost.h"

namespace kinalyx::test {

/// A workstation on which the program has just run for the first time: its data folder, its settings, its host.
struct TestDesk {
  TestDesk() { settings.LoadSettings(); }

  std::optional<std::string> OnDisk(const char* section, const char* key) const {
    return ReadProfileValue(section, key, settings.ConfigFile());
  }

  TempFolder folder;
  TestHost host;
  Settings settings{host, folder.Path("data"), folder.Path("program")};
};

}  // namespace kinalyx::test
