// The least that an indexed get through an interface can cost: one virtual call, in a file of its own so that the
// compiler cannot see through it.
#pragma once

#include <windows.h>

struct Values {
  virtual ~Values() = default;
  virtual HRESULT STDMETHODCALLTYPE Get(LONG pIndex, double* pResult) = 0;
};

Values& PlainValues();
