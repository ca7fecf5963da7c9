#include "forms/win32/AwaitedPeer.h"

namespace vantrel::forms::win32 {
namespace {

// The control's real peer, which has taken the place of `awaited`; nullptr if there is none yet.
ControlPeer* MadePeer(FormWindow& form, const Control& control, const ControlPeer* awaited) {
  form.MakeControls();
  ControlPeer* peer = control.Peer();
  return peer != awaited ? peer : nullptr;
}

}  // namespace

// Neither of these may touch its own members after the making, which ends it.
void AwaitedPeer::SetFocus() {
  if (ControlPeer* made = MadePeer(form_, control_, this)) made->SetFocus();
}

forms::Handle AwaitedPeer::WindowHandle() const {
  const ControlPeer* made = MadePeer(form_, control_, this);
  return made != nullptr ? made->WindowHandle() : 0;
}

}  // namespace vantrel::forms::win32
