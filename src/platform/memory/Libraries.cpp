#include "platform/memory/Libraries.h"

#include <algorithm>

#include "platform/memory/Misuse.h"
#include "text/Strings.h"

namespace vantrel::platform::memory {
namespace {

// Addresses look different from handles and from small numbers.
constexpr EntryAddress FirstAddress = 0x401000;
constexpr EntryAddress AddressStep = 0x10;

}  // namespace

void Libraries::Register(const std::string& path, const Entries& entries) {
  if (!files_.IsFile(path)) files_.Put(path, "MZ");
  entries_[text::UpperCase(path)] = entries;
}

void Libraries::Release() {
  for (const auto& thread : hanging_) {
    thread->runs = false;
    thread->exitCode = 0;
  }
  hanging_.clear();
}

std::size_t Libraries::Loads(const std::string& path) const {
  const auto found = loads_.find(text::UpperCase(path));
  return found == loads_.end() ? 0 : found->second;
}

std::size_t Libraries::RunningThreads(ProcessId process) const {
  return static_cast<std::size_t>(
      std::count_if(hanging_.begin(), hanging_.end(),
                    [process](const auto& thread) { return thread->process == process; }));
}

bool Libraries::Exists(const std::string& path) const {
  return files_.IsFile(path) && entries_.contains(text::UpperCase(path));
}

void Libraries::CountLoad(const std::string& path, int change) {
  loads_[text::UpperCase(path)] += static_cast<std::size_t>(change);
}

EntryAddress Libraries::Find(const std::string& path, const std::string& name) {
  const auto library = entries_.find(text::UpperCase(path));
  if (library == entries_.end() || !library->second.contains(name)) return 0;
  const auto known =
      std::find_if(addresses_.begin(), addresses_.end(), [&](const Address& address) {
        return address.path == library->first && address.name == name;
      });
  const auto index = static_cast<EntryAddress>(known - addresses_.begin());
  if (known == addresses_.end()) addresses_.push_back({library->first, name});
  return FirstAddress + index * AddressStep;
}

const std::string& Libraries::NameOf(EntryAddress address) const { return At(address).name; }

std::shared_ptr<Thread> Libraries::Start(ProcessId process, EntryAddress routine) {
  const Address& address = At(routine);
  const Entry& entry = entries_.at(address.path).at(address.name);
  auto thread = std::make_shared<Thread>(Thread{process, nextThread_++, true, StillActive});
  if (entry) {
    thread->exitCode = static_cast<std::uint32_t>(entry());
    thread->runs = false;
  } else {
    hanging_.push_back(thread);
  }
  return thread;
}

const Libraries::Address& Libraries::At(EntryAddress address) const {
  const EntryAddress index = (address - FirstAddress) / AddressStep;
  Require(address >= FirstAddress && index < addresses_.size(), "a thread needs a library's entry");
  return addresses_[index];
}

}  // namespace vantrel::platform::memory
