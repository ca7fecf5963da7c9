// Windows' registry editor as a program of the in-memory Windows: it exports a key to a
// registration file and imports such files, by its command line. Not modelled: its window, its
// questions and messages, the rights of the user, and its life beside the starter's (it has ended
// when the start returns).
#ifndef VANTREL_PLATFORM_MEMORY_REGISTRYEDITOR_H_
#define VANTREL_PLATFORM_MEMORY_REGISTRYEDITOR_H_

#include "platform/memory/World.h"

namespace vantrel::platform::memory {

inline constexpr const char* RegistryEditorPath = "C:\\WINDOWS\\regedit.exe";

// The editor exists from now on. "/e FILE KEY" writes the key with all below it, and nothing if it
// does not exist; without that switch every argument that names a registration file is imported, as
// the system's own editor does with arguments that it does not know. The world must outlive its
// use.
void InstallRegistryEditor(World& world);

}  // namespace vantrel::platform::memory

#endif  // VANTREL_PLATFORM_MEMORY_REGISTRYEDITOR_H_
