// A library that loads but cannot register itself.
extern "C" __declspec(dllexport) int __stdcall Callback() { return 0; }
