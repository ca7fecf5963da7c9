// The world of the double on Windows: plain registry and file calls.
#ifndef VANTREL_TESTS_SUPPORT_ENGINE_WIN32_WINDOWSWORLD_H_
#define VANTREL_TESTS_SUPPORT_ENGINE_WIN32_WINDOWSWORLD_H_

#include <memory>

#include "engine/World.h"

namespace vantrel::engine {

std::unique_ptr<World> MakeWindowsWorld();

}  // namespace vantrel::engine

#endif  // VANTREL_TESTS_SUPPORT_ENGINE_WIN32_WINDOWSWORLD_H_
