// All that one running copy of the program asks of Windows, a family a member. The families live
// as long as the process that this record belongs to.
#ifndef VANTREL_PLATFORM_PLATFORM_H_
#define VANTREL_PLATFORM_PLATFORM_H_

#include "platform/BinaryFiles.h"
#include "platform/Desktop.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Folders.h"
#include "platform/Modules.h"
#include "platform/Processes.h"
#include "platform/Registry.h"
#include "platform/Shell.h"
#include "platform/Sound.h"
#include "platform/System.h"

namespace vantrel::platform {

struct Platform {
  Registry& registry;
  Desktop& desktop;
  Shell& shell;
  Files& files;
  Processes& processes;
  Sound& sound;
  Dialogs& dialogs;
  System& system;
  Modules& modules;
  Folders& folders;
  BinaryFiles& binaryFiles;
};

}  // namespace vantrel::platform

#endif  // VANTREL_PLATFORM_PLATFORM_H_
