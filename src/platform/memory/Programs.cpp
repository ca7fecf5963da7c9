#include "platform/memory/Programs.h"

#include <utility>

#include "platform/Handles.h"
#include "text/Strings.h"

namespace vantrel::platform::memory {
namespace {

constexpr const char* Blanks = " \t";

bool Blank(char c) { return c == ' ' || c == '\t'; }

bool HasFolder(const std::string& name) { return name.find_first_of("\\/:") != std::string::npos; }

bool HasExtension(const std::string& name) {
  const std::size_t slash = name.find_last_of("\\/:");
  return name.find('.', slash == std::string::npos ? 0 : slash) != std::string::npos;
}

// Where the first word ends, which quotes may hold together.
std::size_t EndOfWord(const std::string& commandLine) {
  std::size_t end = 0;
  for (bool quoted = false; end < commandLine.size(); ++end) {
    if (commandLine[end] == '"') quoted = !quoted;
    if (!quoted && Blank(commandLine[end])) break;
  }
  return end;
}

std::string ArgumentsBehind(const std::string& commandLine, std::size_t end) {
  const std::size_t start = commandLine.find_first_not_of(Blanks, end);
  return start == std::string::npos ? std::string() : commandLine.substr(start);
}

// What stands between the quotes that a command line begins with, else nothing.
std::string Unquoted(const std::string& commandLine) {
  if (!commandLine.starts_with('"')) return {};
  return commandLine.substr(1, commandLine.find('"', 1) - 1);
}

}  // namespace

void Programs::Register(const std::string& path, Main main) {
  mains_[text::UpperCase(path)] = std::move(main);
}

void Programs::RequireElevation(const std::string& path) {
  elevated_.insert(text::UpperCase(path));
}

bool Programs::Exists(const std::string& path) const {
  return mains_.contains(text::UpperCase(path)) || files_.IsFile(path);
}

std::optional<std::string> Programs::Search(const std::string& folder,
                                            const std::string& name) const {
  if (name.empty()) return std::nullopt;
  const std::string file = HasExtension(name) ? name : name + ".exe";
  if (HasFolder(name)) return Exists(file) ? std::optional(file) : std::nullopt;
  for (const std::string& place :
       {folder, std::string("C:\\Windows\\System32"), std::string("C:\\Windows")}) {
    if (Exists(place + '\\' + file)) return place + '\\' + file;
  }
  return std::nullopt;
}

bool Programs::Resolve(const std::string& folder, StartedProcess& process) const {
  const std::string& line = process.commandLine;
  if (line.starts_with('"')) {
    const std::size_t end = std::min(line.find('"', 1), line.size());
    const auto found = Search(folder, line.substr(1, end - 1));
    process.program = found.value_or("");
    process.arguments = ArgumentsBehind(line, end + 1);
    return found.has_value();
  }
  for (std::size_t end = 0; end != std::string::npos;) {
    end = line.find_first_of(Blanks, end + 1);
    if (const auto found = Search(folder, line.substr(0, end))) {
      process.program = *found;
      process.arguments = end == std::string::npos ? "" : ArgumentsBehind(line, end);
      return true;
    }
  }
  return false;
}

std::int32_t Programs::FindProgram(const std::string& folder, StartedProcess& process) const {
  if (process.application.empty()) {
    if (process.commandLine.starts_with("\"\"")) return ErrorInvalidParameter;
    if (Resolve(folder, process)) return ErrorSuccess;
    return files_.IsFolder(Unquoted(process.commandLine)) ? ErrorAccessDenied : ErrorFileNotFound;
  }
  const std::string& path = process.application;
  process.program = path;
  const bool inFront = process.commandLine.starts_with(path);
  process.arguments =
      ArgumentsBehind(process.commandLine, inFront ? path.size() : EndOfWord(process.commandLine));
  if (Exists(path)) return ErrorSuccess;
  if (files_.IsFolder(path)) return ErrorAccessDenied;
  const std::size_t slash = path.find_last_of("\\/");
  const bool folderThere = slash == std::string::npos || files_.IsFolder(path.substr(0, slash));
  return folderThere ? ErrorFileNotFound : ErrorPathNotFound;
}

std::int32_t Programs::Start(ProcessId starter, const std::string& folder,
                             const std::string& application, const std::string& commandLine,
                             int showCommand) {
  StartedProcess process{starter, application, commandLine, showCommand, {}, {}, false};
  if (const std::int32_t code = FindProgram(folder, process); code != ErrorSuccess) return code;
  const std::string folded = text::UpperCase(process.program);
  const auto main = mains_.find(folded);
  if (main == mains_.end() && !folded.ends_with(".EXE") && !folded.ends_with(".COM")) {
    return ErrorBadExeFormat;
  }
  process.elevated = elevated_.contains(folded);
  if (process.elevated && elevationRefusal_) return *elevationRefusal_;
  started_.push_back(process);
  // A copy: the program may register others.
  if (main != mains_.end() && main->second) Main(main->second)(process);
  return ErrorSuccess;
}

}  // namespace vantrel::platform::memory
