#include "forms/win32/SpokenObject.h"

#include <oleacc.h>

#include <exception>
#include <string>
#include <utility>

#include "forms/SpokenName.h"
#include "forms/win32/SystemRoutine.h"

namespace vantrel::forms::win32 {
namespace {

// The compiler's own library has another number under this name.
constexpr IID AccessibleInterface = {
    0x618736E0, 0x3C3D, 0x11CF, {0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};

BSTR NewText(const std::string& text) {
  static auto* const allocate =
      SystemRoutine<BSTR WINAPI(const OLECHAR*, UINT)>("oleaut32.dll", "SysAllocStringLen");
  if (allocate == nullptr) return nullptr;
  const auto size = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
  BSTR made = allocate(nullptr, static_cast<UINT>(length));
  if (made != nullptr) MultiByteToWideChar(CP_ACP, 0, text.data(), size, made, length);
  return made;
}

// The caller is another process, which takes no exception.
template <class Text>
HRESULT Answer(BSTR* answer, Text text) noexcept {
  if (answer == nullptr) return E_POINTER;
  *answer = nullptr;
  try {
    const std::string told = text();
    if (!told.empty()) *answer = NewText(told);
  } catch (const std::exception&) {
    return E_OUTOFMEMORY;
  }
  return *answer != nullptr ? S_OK : S_FALSE;
}

bool IsSelf(const VARIANT& child) { return child.vt == VT_I4 && child.lVal == CHILDID_SELF; }

// Lives as long as a reader holds it, which may be longer than the window: then the system's object
// has the say. Called on the windows' thread only, as its apartment wants.
class SpokenObject final : public IAccessible {
 public:
  SpokenObject(const std::shared_ptr<ControlWindow>& window, IAccessible* ofSystem)
      : window_(window), ofSystem_(ofSystem) {}
  SpokenObject(const SpokenObject&) = delete;
  SpokenObject& operator=(const SpokenObject&) = delete;

  // The list of the children and the window are the system's object's.
  STDMETHODIMP QueryInterface(REFIID wanted, void** found) override {
    if (IsEqualIID(wanted, IID_IEnumVARIANT) || IsEqualIID(wanted, IID_IOleWindow)) {
      return ofSystem_->QueryInterface(wanted, found);
    }
    if (found == nullptr) return E_POINTER;
    *found = nullptr;
    const bool own = IsEqualIID(wanted, IID_IUnknown) || IsEqualIID(wanted, IID_IDispatch) ||
                     IsEqualIID(wanted, AccessibleInterface);
    if (!own) return E_NOINTERFACE;
    *found = static_cast<IAccessible*>(this);
    AddRef();
    return S_OK;
  }
  STDMETHODIMP_(ULONG) AddRef() override { return ++holders_; }
  STDMETHODIMP_(ULONG) Release() override {
    const ULONG left = --holders_;
    if (left == 0) delete this;
    return left;
  }

  STDMETHODIMP get_accName(VARIANT child, BSTR* name) override {
    Control* control = IsSelf(child) ? Model() : nullptr;
    if (control == nullptr) return ofSystem_->get_accName(child, name);
    return Answer(name, [control] { return SpokenName(*control); });
  }
  STDMETHODIMP get_accDescription(VARIANT child, BSTR* text) override {
    Control* control = IsSelf(child) ? Model() : nullptr;
    if (control == nullptr) return ofSystem_->get_accDescription(child, text);
    return Answer(text, [control] { return SpokenDescription(*control); });
  }
  STDMETHODIMP get_accRole(VARIANT child, VARIANT* role) override {
    if (!IsLink(child)) return ofSystem_->get_accRole(child, role);
    if (role == nullptr) return E_POINTER;
    role->vt = VT_I4;
    role->lVal = ROLE_SYSTEM_LINK;
    return S_OK;
  }
  STDMETHODIMP get_accDefaultAction(VARIANT child, BSTR* action) override {
    if (!IsLink(child)) return ofSystem_->get_accDefaultAction(child, action);
    return Answer(action, [] { return std::string("Jump"); });
  }
  STDMETHODIMP accDoDefaultAction(VARIANT child) override {
    const std::shared_ptr<ControlWindow> window = window_.lock();
    if (window == nullptr || !IsLink(child)) return ofSystem_->accDoDefaultAction(child);
    // The reader goes on while the click's event, which may show a box, is still running.
    return PostMessageA(window->Handle(), BM_CLICK, 0, 0) ? S_OK : E_FAIL;
  }

  // The rest is the system's.
  STDMETHODIMP GetTypeInfoCount(UINT* count) override { return ofSystem_->GetTypeInfoCount(count); }
  STDMETHODIMP GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override {
    return ofSystem_->GetTypeInfo(index, locale, info);
  }
  STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID locale,
                             DISPID* numbers) override {
    return ofSystem_->GetIDsOfNames(reserved, names, count, locale, numbers);
  }
  STDMETHODIMP Invoke(DISPID member, REFIID reserved, LCID locale, WORD flags,
                      DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* trouble,
                      UINT* wrong) override {
    // Called by number, the members are these here, not the system's object's.
    ITypeInfo* members = nullptr;
    if (FAILED(ofSystem_->GetTypeInfo(0, locale, &members))) {
      return ofSystem_->Invoke(member, reserved, locale, flags, arguments, result, trouble, wrong);
    }
    const HRESULT done = members->Invoke(static_cast<IAccessible*>(this), member, flags, arguments,
                                         result, trouble, wrong);
    members->Release();
    return done;
  }
  STDMETHODIMP get_accParent(IDispatch** parent) override {
    return ofSystem_->get_accParent(parent);
  }
  STDMETHODIMP get_accChildCount(LONG* count) override {
    return ofSystem_->get_accChildCount(count);
  }
  STDMETHODIMP get_accChild(VARIANT child, IDispatch** object) override {
    return ofSystem_->get_accChild(child, object);
  }
  STDMETHODIMP get_accValue(VARIANT child, BSTR* value) override {
    return ofSystem_->get_accValue(child, value);
  }
  STDMETHODIMP get_accState(VARIANT child, VARIANT* state) override {
    return ofSystem_->get_accState(child, state);
  }
  STDMETHODIMP get_accHelp(VARIANT child, BSTR* help) override {
    return ofSystem_->get_accHelp(child, help);
  }
  STDMETHODIMP get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) override {
    return ofSystem_->get_accHelpTopic(file, child, topic);
  }
  STDMETHODIMP get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override {
    return ofSystem_->get_accKeyboardShortcut(child, shortcut);
  }
  STDMETHODIMP get_accFocus(VARIANT* child) override { return ofSystem_->get_accFocus(child); }
  STDMETHODIMP get_accSelection(VARIANT* children) override {
    return ofSystem_->get_accSelection(children);
  }
  STDMETHODIMP accSelect(LONG flags, VARIANT child) override {
    return ofSystem_->accSelect(flags, child);
  }
  STDMETHODIMP accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                           VARIANT child) override {
    return ofSystem_->accLocation(left, top, width, height, child);
  }
  STDMETHODIMP accNavigate(LONG direction, VARIANT from, VARIANT* end) override {
    return ofSystem_->accNavigate(direction, from, end);
  }
  STDMETHODIMP accHitTest(LONG x, LONG y, VARIANT* child) override {
    return ofSystem_->accHitTest(x, y, child);
  }
  STDMETHODIMP put_accName(VARIANT child, BSTR name) override {
    return ofSystem_->put_accName(child, name);
  }
  STDMETHODIMP put_accValue(VARIANT child, BSTR value) override {
    return ofSystem_->put_accValue(child, value);
  }

 private:
  ~SpokenObject() { ofSystem_->Release(); }

  Control* Model() const {
    const std::shared_ptr<ControlWindow> window = window_.lock();
    return window != nullptr && window->Alive() ? &window->Model() : nullptr;
  }
  bool IsLink(const VARIANT& child) const {
    Control* control = IsSelf(child) ? Model() : nullptr;
    return control != nullptr && IsSpokenLink(*control);
  }

  std::weak_ptr<ControlWindow> window_;
  IAccessible* ofSystem_;
  ULONG holders_ = 1;
};

// Readers are in other processes: the object travels to them through this thread's apartment.
bool HasApartment() {
  static const bool entered = [] {
    auto* const enter = SystemRoutine<HRESULT WINAPI(void*)>("ole32.dll", "CoInitialize");
    return enter != nullptr && SUCCEEDED(enter(nullptr));
  }();
  return entered;
}

}  // namespace

LRESULT AnswerSpokenObject(const std::shared_ptr<ControlWindow>& window, WPARAM flags) {
  static auto* const make = SystemRoutine<HRESULT WINAPI(HWND, LONG, REFIID, void**)>(
      "oleacc.dll", "CreateStdAccessibleObject");
  static auto* const answer =
      SystemRoutine<LRESULT WINAPI(REFIID, WPARAM, IUnknown*)>("oleacc.dll", "LresultFromObject");
  void* ofSystem = nullptr;
  if (make == nullptr || answer == nullptr || !HasApartment() ||
      FAILED(make(window->Handle(), OBJID_CLIENT, AccessibleInterface, &ofSystem))) {
    return 0;
  }
  auto* object = new SpokenObject(window, static_cast<IAccessible*>(ofSystem));
  const LRESULT result = answer(AccessibleInterface, flags, object);
  object->Release();
  return result;
}

}  // namespace vantrel::forms::win32
