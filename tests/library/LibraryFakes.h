#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "library/LibraryOperations.h"
#include "library/NotesKeeper.h"
#include "platform/files/Folders.h"

namespace kinalyx::test {

/// An analysis section in which some videos are open, and which takes every video that is sent to it.
class FakeAnalysis final : public IAnalysisLink {
 public:
  std::set<std::string> open;
  std::vector<std::string> sent;

  bool IsOpenInAnalysis(const std::string& path) const override { return open.contains(path); }
  int SendToAnalysis(const std::string& path, const std::function<void(const std::string&)>& status) override {
    sent.push_back(path);
    status("Current video was sent to Analysis.");
    return 1;
  }
  void GoToAnalysis() override { ++shown; }
  void PathChanged(const std::string& from, const std::string& to) override { moved.emplace_back(from, to); }
  std::vector<std::pair<std::string, std::string>> moved;
  int shown = 0;  ///< how often the section was asked for
};

/// A trash that can be full, or missing.
class FakeTrash final : public ITrash {
 public:
  bool there = true;
  bool full = false;
  std::vector<std::string> taken;

  bool Has(const std::string&) const override { return there; }
  bool Take(const std::string& path) override {
    if (full) return false;
    taken.push_back(LastName(path));
    return std::filesystem::remove_all(path) > 0;
  }
};

/// Keeps what a long operation tells.
class HeardOperation final : public IOperationEvents {
 public:
  std::vector<std::string> statuses;
  std::optional<OperationResult> ended;
  std::function<void(const JobProgress&)> onProgress;  ///< what the user does meanwhile

  void ShowStatus(const std::string& words) override { statuses.push_back(words); }
  void ShowProgress(const JobProgress& progress) override {
    if (onProgress) onProgress(progress);
  }
  void WorkOver() override {}
  void Ended(const OperationResult& result) override { ended = result; }
};

/// A drive for notes that answers, until the test says otherwise.
class FakeNotesEvents final : public INotesEvents {
 public:
  std::function<bool(const std::string& folder)> reach = [](const std::string&) { return true; };
  std::string lost;

  bool CanReachNotes(const std::string& folder) override { return reach(folder); }
  void NotesLost(const std::string& folder, const std::string& notes) override {
    lost += folder.substr(folder.rfind('/') + 1) + ": " + notes;
  }
};

}  // namespace kinalyx::test
