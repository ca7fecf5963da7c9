// The in-memory Windows that the console begins with and leaves behind, as registration files. A
// kept one has its clock, folders and files in a key of its own, after the five roots. Running
// programs, windows, links, locks, refusals and the Recycle Bin are not kept.
#ifndef VANTREL_APP_CONSOLE_STATE_H_
#define VANTREL_APP_CONSOLE_STATE_H_

#include <functional>
#include <memory>
#include <string>

#include "platform/memory/World.h"

namespace vantrel::console {

// With a browser that the program supports and the program just installed, not yet started.
std::unique_ptr<platform::memory::World> FreshWindows();

std::string StateText(const platform::memory::World& world);
// CommandError for a text that is no state, or whose end is missing.
std::unique_ptr<platform::memory::World> WindowsFromState(const std::string& text);

inline constexpr const char* RegHeader = "REGEDIT4\r\n\r\n";
// The key with all below it in the older form of registration files, which keeps every byte of the
// names and texts; without the header.
std::string Exported(const platform::memory::RegistryTree& registry, platform::KeyHandle root,
                     const std::string& subkey = {});

// From "2004-03-15 12:00:00"; CommandError for another form, or a day that does not exist.
void SetClock(platform::memory::World& world, const std::string& text);

bool IsLink(const platform::memory::FileTree& files, const std::string& path);
// Every file, folder and link below the folder, folders before what is in them; links are not
// followed.
void Walk(const platform::memory::FileTree& files, const std::string& folder,
          const std::function<void(const std::string&)>& visit);
// Both make missing folders on the way; CommandError with the reason if that cannot be.
void MakeFolder(platform::memory::FileTree& files, const std::string& path);
void PutFile(platform::memory::FileTree& files, const std::string& path,
             const std::string& content);

// Files of the real disk. CommandError with the reason for one that cannot be read or written; a
// file is replaced whole or not at all.
std::string ReadRealFile(const std::string& path);
void WriteRealFile(const std::string& path, const std::string& content);

}  // namespace vantrel::console

#endif  // VANTREL_APP_CONSOLE_STATE_H_
