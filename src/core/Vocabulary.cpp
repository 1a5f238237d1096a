#include "core/Vocabulary.h"

#include "platform/files/TextEncoding.h"

namespace kinalyx {

std::string Vocabulary::Nouns() const { return Noun() + "s"; }
std::string Vocabulary::Profiles() const { return Noun() + " Profiles"; }
std::string Vocabulary::Profile() const { return Noun() + " Profile"; }
std::string Vocabulary::Notes() const { return Noun() + " Notes"; }
std::string Vocabulary::Name() const { return Noun() + " Name"; }
std::string Vocabulary::Select() const { return "Select " + Noun(); }
std::string Vocabulary::AddNew() const { return "Add New " + Noun(); }
std::string Vocabulary::Rename() const { return "Rename " + Noun(); }
std::string Vocabulary::MoveThis() const { return "Move this " + noun(); }
std::string Vocabulary::DeleteThis() const { return "Delete this " + noun(); }
std::string Vocabulary::ProfilesEditUtility() const { return Noun() + " Profiles Edit Utility"; }
std::string Vocabulary::MustSelect() const { return "You must select a " + noun() + " first."; }

std::string Vocabulary::PageButton(int index) const {
  switch (index) {
    case 1: return Profiles();
    case 2: return "Capture Videos";
    case 3: return "Analyze Videos";
    case 4: return "Send Lesson";
    case 5: return "Import/Export";
    case 6: return "Program Setup";
    case 7: return "Help and Demos";
    case 8: return "To Main Menu";
    default: return {};
  }
}

std::string Vocabulary::PageTitle(int index) const {
  switch (index) {
    case 1: return Profiles();
    case 2: return "Video Capture";
    case 3: return "Loading Analysis";
    case 4: return "Send Lesson";
    case 5: return "Import/Export Videos";
    case 6: return "Program Setup";
    case 7: return "Help Menu";
    default: return "Main Menu";
  }
}

bool SetPrimaryName(Settings& settings, const std::string& text) {
  if (text == settings.PrimaryName[0]) return false;
  const std::string lower = LowerCase(text);
  settings.PrimaryName = {text, lower, std::string(Trimmed(lower + "s", " "))};
  for (auto& name : settings.PrimaryName) settings.Write(name);
  return true;
}

}  // namespace kinalyx
