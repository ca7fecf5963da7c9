#include "launch/Targets.h"

namespace vantrel::launch {
namespace {

std::string TextOf(const program::Program& program, Base base) {
  switch (base) {
    case Base::ProgramFolder:
      return program.PathOf("");
    case Base::FirstHost:
      return std::string(FirstHost);
    case Base::SecondHost:
      return std::string(SecondHost);
    case Base::FirstHostWithScheme:
      return "http://" + std::string(FirstHost);
    case Base::TestPage:
      return std::string(TestPage);
  }
  return {};
}

}  // namespace

std::string AddressOf(const program::Program& program, const Target& target) {
  return TextOf(program, target.base) + target.path;
}

}  // namespace vantrel::launch
