#include "PlainValues.h"

namespace {

struct StoredValues final : Values {
  HRESULT STDMETHODCALLTYPE Get(LONG pIndex, double* pResult) override {
    *pResult = values[pIndex];
    return S_OK;
  }
  double values[16] = {};
};

}  // namespace

Values& PlainValues() {
  static StoredValues values;
  return values;
}
