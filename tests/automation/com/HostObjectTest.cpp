// Objects of hosts that the library calls by name, and fonts, which it calls by number.
#include <cmath>

#include <olectl.h>

#include "Client.h"

namespace qzbase::tests {
namespace {

TEST(HostErrors, BecomeTheNumbersThatTheyStandFor) {
  const auto errors = Create<_GCError>(__uuidof(GCError));
  struct Row {
    HRESULT result;
    HRESULT scode;
    HRESULT expected;
  };
  const Row rows[] = {{DISP_E_MEMBERNOTFOUND, S_OK, ErrorResult(438)},
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
  for (const Row& row : rows) {
    ScriptObject client({{L"ErrIndex", [&](const DISPPARAMS&, VARIANT*) { return row.result; }}});
    client.scode = row.scode;
    IDispatch* passed = &client;
    EXPECT_EQ(row.expected, errors->SynchErrors(&passed)) << std::hex << row.result;
    const ThreadError error;
    if (row.result == DISP_E_EXCEPTION) {
      EXPECT_EQ(u"Script", error.source);
      EXPECT_EQ(u"went wrong", error.description);
    }
    EXPECT_EQ(1U, client.References());
  }
  ScriptObject empty({});
  IDispatch* passed = &empty;
  EXPECT_EQ(ErrorResult(438), errors->SynchErrors(&passed));
}

// Scripts of some hosts pass arrays as objects with a length, and texts and numbers as objects with a value.
TEST(HostObjects, ServeAsArraysAndValues) {
  const auto vector = Create<_CDblVector>(__uuidof(CDblVector));
  ScriptObject number({{L"", Returns(Double(2.5))}});
  ScriptObject array({{L"length", Returns(Long(3))}, {L"0", Returns(Long(4))}, {L"2", Returns(Double(0.5))}});
  Answer answer;
  CallByName(answer, vector.Get(), L"SetFromArray", DISPATCH_METHOD, {Dispatch(&array)});
  EXPECT_EQ(S_OK, answer.result);
  CallByName(answer, vector.Get(), L"AddValue", DISPATCH_METHOD, {Dispatch(&number)});
  EXPECT_EQ(S_OK, answer.result);
  EXPECT_EQ(u"(4;0;0.5;2.5)", Shown(vector));
  EXPECT_EQ(1U, array.References());
  EXPECT_EQ(1U, number.References());
}

TEST(HostObjects, ComeBackAsTheyWere) {
  const auto math = Create<_GCMath>(__uuidof(GCMath));
  ScriptObject object({});
  OwnedVariant left;
  OwnedVariant right;
  left.value = Dispatch(&object, VT_UNKNOWN);
  object.AddRef();
  EXPECT_EQ(S_OK, math->Swap(&left.value, &right.value));
  EXPECT_EQ(VT_UNKNOWN, right.value.vt);
  EXPECT_EQ(&object, right.value.punkVal);
  VariantClear(&right.value);
  EXPECT_EQ(1U, object.References());
}

// What the font says of itself: the system may take another font for one that is not installed.
void ExpectStyle(IDispatch& pFont, LONG pColor, LONG pStyle, double pNearSize) {
  const auto base = Create<_GCBase>(__uuidof(GCBase));
  TFontStyle style{};
  ASSERT_EQ(S_OK, base->FontStyle(&pFont, pColor, &style));
  ComRef<IFont> font;
  EXPECT_EQ(S_OK, pFont.QueryInterface(IID_IFont, font.PutVoid()));
  BSTR name = nullptr;
  CY size{};
  EXPECT_EQ(S_OK, font->get_Name(&name));
  EXPECT_EQ(S_OK, font->get_Size(&size));
  EXPECT_EQ(Taken(name), Taken(style.Name));
  EXPECT_EQ(std::nearbyint(static_cast<double>(size.int64) / 10000), style.Size);
  EXPECT_NEAR(pNearSize, style.Size, 1);
  EXPECT_EQ(pStyle, style.Style);
  EXPECT_EQ(pColor, style.Color);
}

TEST(Fonts, OfTheSystemAreReadAndSet) {
  FONTDESC description{};
  description.cbSizeofstruct = sizeof description;
  wchar_t arial[] = L"Arial";
  description.lpstrName = arial;
  description.cySize.int64 = 97500;  // 9.75 points
  description.sWeight = FW_BOLD;
  description.fUnderline = TRUE;
  ComRef<IDispatch> font;
  ASSERT_EQ(S_OK, OleCreateFontIndirect(&description, IID_IDispatch, font.PutVoid()));
  ExpectStyle(*font.Get(), 255, 5, 10);
  const OwnedText courier = Bstr(u"Courier New");
  TFontStyle wanted{courier.Get(), 12, 10, 0};
  IDispatch* passed = font.Get();
  ASSERT_EQ(S_OK, Create<_GCBase>(__uuidof(GCBase))->SetFontFromFontStyle(&passed, &wanted));
  ExpectStyle(*font.Get(), 0, 10, 12);
}

// Numbers say what the members are, whatever the host calls them; the flags are read bold first.
TEST(Fonts, OfHostsAreCalledByTheNumbersOfTheStandardFont) {
  const OwnedText name = Bstr(u"Arial");
  std::string read;
  const auto returns = [&](const char* pShown, VARIANT pValue) -> ScriptFunction {
    return [&read, pShown, pValue](const DISPPARAMS&, VARIANT* pResult) mutable {
      read += pShown;
      return VariantCopy(pResult, &pValue);
    };
  };
  ScriptObject font({{L"", returns("name ", Text(name))},
                     {L"Grad", returns("size ", Double(9.5))},
                     {L"Fett", returns("bold ", Long(0))},
                     {L"Kursiv", returns("italic ", Long(-1))},
                     {L"Unterstrichen", returns("underline ", Long(0))},
                     {L"Durchgestrichen", returns("strike", Long(-1))}});
  TFontStyle style{};
  ASSERT_EQ(S_OK, Create<_GCBase>(__uuidof(GCBase))->FontStyle(&font, 255, &style));
  EXPECT_EQ(u"Arial", Taken(style.Name));
  EXPECT_EQ(10, style.Size);
  EXPECT_EQ(10, style.Style);
  EXPECT_EQ("name size bold italic underline strike", read);
}

}  // namespace
}  // namespace qzbase::tests
