// The one owner of what is closed by a call: handles of any kind. Move-only, closes what it holds,
// converts to nothing by itself. One alias a kind; nobody else calls a closing function.
#ifndef VANTREL_TEXT_OWNED_H_
#define VANTREL_TEXT_OWNED_H_

#include <utility>

namespace vantrel::text {

// Traits: `Type`, `Invalid()` and `Close(Type)`.
template <typename Traits>
class Owned {
 public:
  using Type = typename Traits::Type;

  Owned() = default;
  explicit Owned(Type handle) : handle_(handle) {}
  Owned(Owned&& other) noexcept : handle_(std::exchange(other.handle_, Traits::Invalid())) {}
  Owned& operator=(Owned&& other) noexcept {
    if (this != &other) Reset(std::exchange(other.handle_, Traits::Invalid()));
    return *this;
  }
  ~Owned() { Reset(); }

  Type Get() const { return handle_; }
  bool Valid() const { return handle_ != Traits::Invalid(); }
  // Closes the handle held and takes the new one.
  void Reset(Type handle = Traits::Invalid()) {
    const Type old = std::exchange(handle_, handle);
    if (old != Traits::Invalid()) Traits::Close(old);
  }

 private:
  Type handle_ = Traits::Invalid();
};

}  // namespace vantrel::text

#endif  // VANTREL_TEXT_OWNED_H_
