// Objects of hosts that the library calls by name, and the system's fonts, which it calls by number.
#include <olectl.h>

#include "Client.h"

namespace qzbase::tests {
namespace {

TEST(HostObjects, FailWithTheNumbersThatTheirErrorsStandFor) {
  const auto errors = Create<_GCError>(__uuidof(GCError));
  const struct {
    HRESULT result;
    HRESULT scode;
    HRESULT expected;
  } rows[] = {{DISP_E_MEMBERNOTFOUND, S_OK, ErrorResult(438)},
              {DISP_E_TYPEMISMATCH, S_OK, ErrorResult(13)},
              {DISP_E_OVERFLOW, S_OK, ErrorResult(6)},
              {DISP_E_BADPARAMCOUNT, S_OK, ErrorResult(450)},
              {DISP_E_PARAMNOTOPTIONAL, S_OK, ErrorResult(449)},
              {DISP_E_BADINDEX, S_OK, ErrorResult(9)},
              {E_INVALIDARG, S_OK, ErrorResult(5)},
              {E_OUTOFMEMORY, S_OK, ErrorResult(7)},
              {HRESULT(0x80004005), S_OK, HRESULT(0x80004005)},
              {DISP_E_EXCEPTION, ErrorResult(1234), ErrorResult(1234)},
              {DISP_E_EXCEPTION, DISP_E_OVERFLOW, ErrorResult(6)},
              {DISP_E_EXCEPTION, HRESULT(0x80040201), HRESULT(0x80040201)}};
  for (const auto& row : rows) {
    ScriptObject client({{L"ErrIndex", [&](const DISPPARAMS&, VARIANT*) { return row.result; }}});
    client.scode = row.scode;
    IDispatch* passed = &client;
    EXPECT_EQ(row.expected, errors->SynchErrors(&passed)) << std::hex << row.result;
    const std::string text = ThreadError();
    if (row.result == DISP_E_EXCEPTION) {
      EXPECT_EQ("Script|went wrong", text);
    }
    EXPECT_EQ(1U, client.References());
  }
}

// Scripts of some hosts pass arrays as objects with a length, and texts and numbers as objects with a value.
TEST(HostObjects, ServeAsArraysAndValues) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  ScriptObject number({{L"", Returns(Double(2.5))}});
  ScriptObject array({{L"length", Returns(Long(3))}, {L"0", Returns(Long(4))}, {L"2", Returns(Double(0.5))}});
  EXPECT_EQ("", Call(vector, L"SetFromArray", {Dispatch(&array)}));
  EXPECT_EQ("", Call(vector, L"AddValue", {Dispatch(&number)}));
  EXPECT_EQ("(4;0;0.5;2.5)", Shown(vector));
  EXPECT_EQ(1U, array.References());
  EXPECT_EQ(1U, number.References());
}

TEST(HostObjects, ComeBackAsTheyWere) {
  ScriptObject object({});
  VARIANT left = Value(VT_UNKNOWN, static_cast<IUnknown*>(&object));
  VARIANT right{};
  object.AddRef();
  EXPECT_EQ(S_OK, Create<_GCMath>(__uuidof(GCMath))->Swap(&left, &right));
  EXPECT_EQ(VT_UNKNOWN, right.vt);
  EXPECT_EQ(&object, right.punkVal);
  VariantClear(&right);
  EXPECT_EQ(1U, object.References());
}

// The system may take another font for one that is not installed, and another size.
TEST(HostObjects, OfTheSystemAreFonts) {
  const auto base = Create<_GCBase>(__uuidof(GCBase));
  wchar_t arial[] = L"Arial";
  FONTDESC description{sizeof description, arial, {}, FW_BOLD, 0, FALSE, TRUE, FALSE};
  description.cySize.int64 = 97500;  // 9.75 points
  ComRef<IDispatch> font;
  ASSERT_EQ(S_OK, OleCreateFontIndirect(&description, IID_IDispatch, font.PutVoid()));
  const auto expectStyle = [&](LONG pStyle, double pSize) {
    TFontStyle style{};
    ASSERT_EQ(S_OK, base->FontStyle(font.Get(), 255, &style));
    EXPECT_NE("", Taken(style.Name));
    EXPECT_NEAR(pSize, style.Size, 1);
    EXPECT_EQ(pStyle, style.Style);
    EXPECT_EQ(255, style.Color);
  };
  expectStyle(5, 10);
  const OwnedText courier(u"Courier New");
  TFontStyle wanted{courier.Get(), 12, 10, 0};
  IDispatch* passed = font.Get();
  ASSERT_EQ(S_OK, base->SetFontFromFontStyle(&passed, &wanted));
  expectStyle(10, 12);
}

}  // namespace
}  // namespace qzbase::tests
