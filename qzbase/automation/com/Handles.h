// What the platform hands out by raw pointer, released by its owner.
#pragma once

#include <new>
#include <utility>

#include "qzbase/automation/com/Platform.h"

namespace qzbase::automation::com {

// A counted reference to an interface.
template <class Interface>
class ComRef {
 public:
  ComRef() = default;
  // Takes over one reference.
  explicit ComRef(Interface* pOwned) noexcept : pointer_(pOwned) {}
  ComRef(const ComRef& pOther) noexcept : pointer_(pOther.pointer_) {
    if (pointer_) pointer_->AddRef();
  }
  ComRef(ComRef&& pOther) noexcept : pointer_(std::exchange(pOther.pointer_, nullptr)) {}
  ComRef& operator=(ComRef pOther) noexcept {
    std::swap(pointer_, pOther.pointer_);
    return *this;
  }
  ~ComRef() {
    if (pointer_) pointer_->Release();
  }

  // Counts a reference of its own.
  static ComRef Share(Interface* pInterface) noexcept {
    if (pInterface) pInterface->AddRef();
    return ComRef(pInterface);
  }

  // Empty when the object does not have the interface.
  template <class Other>
  ComRef<Other> As(REFIID pId) const noexcept {
    ComRef<Other> result;
    if (pointer_ && FAILED(pointer_->QueryInterface(pId, result.PutVoid()))) return {};
    return result;
  }

  Interface* Get() const noexcept { return pointer_; }
  Interface* Release() noexcept { return std::exchange(pointer_, nullptr); }
  Interface* operator->() const noexcept { return pointer_; }
  explicit operator bool() const noexcept { return pointer_ != nullptr; }

  // For functions that store a new reference; there is none yet.
  Interface** Put() noexcept { return &pointer_; }
  void** PutVoid() noexcept { return reinterpret_cast<void**>(&pointer_); }

 private:
  Interface* pointer_ = nullptr;
};

// Clearing a record must free its memory too, which not every system's VariantClear does.
inline void ClearVariant(VARIANT& pVariant) noexcept {
  if (pVariant.vt == VT_RECORD && pVariant.pRecInfo) {
    if (pVariant.pvRecord) pVariant.pRecInfo->RecordDestroy(pVariant.pvRecord);
    pVariant.pRecInfo->Release();
    pVariant.vt = VT_EMPTY;
  } else if (pVariant.vt != VT_EMPTY) {
    VariantClear(&pVariant);
  }
}

class OwnedVariant {
 public:
  OwnedVariant() noexcept = default;
  ~OwnedVariant() { ClearVariant(value); }
  OwnedVariant(const OwnedVariant&) = delete;
  OwnedVariant& operator=(const OwnedVariant&) = delete;

  VARIANT Release() noexcept {
    const VARIANT result = value;
    value.vt = VT_EMPTY;
    return result;
  }

  VARIANT value{};
};

class OwnedText {
 public:
  explicit OwnedText(std::u16string_view pText)
      : text_(SysAllocStringLen(AsWide(pText.data()), static_cast<UINT>(pText.size()))) {
    if (!text_) throw std::bad_alloc();
  }
  static OwnedText Owning(BSTR pText) noexcept { return OwnedText(pText); }
  OwnedText(OwnedText&& pOther) noexcept : text_(pOther.Release()) {}
  ~OwnedText() { SysFreeString(text_); }
  OwnedText(const OwnedText&) = delete;
  OwnedText& operator=(const OwnedText&) = delete;

  BSTR Get() const noexcept { return text_; }
  BSTR Release() noexcept { return std::exchange(text_, nullptr); }

 private:
  explicit OwnedText(BSTR pText) noexcept : text_(pText) {}

  BSTR text_;
};

class OwnedSafeArray {
 public:
  explicit OwnedSafeArray(SAFEARRAY* pArray = nullptr) noexcept : array_(pArray) {}
  OwnedSafeArray(OwnedSafeArray&& pOther) noexcept : array_(std::exchange(pOther.array_, nullptr)) {}
  OwnedSafeArray& operator=(OwnedSafeArray&& pOther) noexcept {
    std::swap(array_, pOther.array_);
    return *this;
  }
  ~OwnedSafeArray() {
    if (array_) SafeArrayDestroy(array_);
  }

  SAFEARRAY* Get() const noexcept { return array_; }
  SAFEARRAY* Release() noexcept { return std::exchange(array_, nullptr); }

 private:
  SAFEARRAY* array_;
};

// The text in a BSTR, which may be null.
inline std::u16string_view TextIn(BSTR pText) noexcept {
  return pText ? AsText({pText, SysStringLen(pText)}) : std::u16string_view();
}

}  // namespace qzbase::automation::com
