// The in-memory Windows between two runs, as one readable text: clock, registry, folders and files;
// no windows, no running programs, no locks and refusals. The last line counts the others and holds
// their sum, so that a file that was cut or changed is known as damaged and taken for nothing else.
#ifndef VANTREL_APP_CONSOLE_STATEFILE_H_
#define VANTREL_APP_CONSOLE_STATEFILE_H_

#include <memory>
#include <string>

#include "platform/memory/World.h"

namespace vantrel::console {

std::string StateText(const platform::memory::World& world);

// CommandError, with the number of the line where that tells something, for a damaged text.
std::unique_ptr<platform::memory::World> WindowsFromState(const std::string& text);

// Files of the real disk. CommandError with the reason for one that cannot be read or written; a
// file is replaced whole or not at all.
std::string ReadRealFile(const std::string& path);
void WriteRealFile(const std::string& path, const std::string& content);
bool RealFileExists(const std::string& path);

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_STATEFILE_H_
