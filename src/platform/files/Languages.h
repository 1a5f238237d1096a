#pragma once

#include <string>
#include <vector>

class QCoreApplication;

namespace kinalyx {

/// A language in which the program speaks.
struct Language {
  std::string code;  ///< "de"
  std::string name;  ///< in itself: "Deutsch"
};

/// The languages for which a folder holds words, by name, and English among them, in which the program is written.
std::vector<Language> LanguagesIn(const std::string& folder);

/// Has `Tr`, all forms and the toolkit's own dialogs speak a language, from now on: what has been said stays as it is.
/// @param application  in whose life the words are kept
/// @param folder       of the words, one compiled catalogue a language
/// @param code         a language's; empty or unknown: the first of the desktop's languages that has words
void SpeakLanguage(QCoreApplication& application, const std::string& folder, const std::string& code);

}  // namespace kinalyx
