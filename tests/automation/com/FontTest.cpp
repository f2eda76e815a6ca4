// The system's standard font and one of a host in the hands of the library, which calls their members by number.
#include <cmath>

#include <olectl.h>

#include "ScriptObject.h"

namespace qzbase::tests {
namespace {

// What the font says of itself: the system may take another font for one that is not installed.
std::u16string NameOf(IDispatch& pFont, std::int32_t& pSize) {
  ComRef<IFont> font;
  EXPECT_EQ(S_OK, pFont.QueryInterface(IID_IFont, font.PutVoid()));
  BSTR name = nullptr;
  CY size{};
  EXPECT_EQ(S_OK, font->get_Name(&name));
  EXPECT_EQ(S_OK, font->get_Size(&size));
  pSize = static_cast<std::int32_t>(std::nearbyint(static_cast<double>(size.int64) / 10000));
  return Taken(name);
}

TEST(StandardFont, IsReadAndSet) {
  const auto base = Create<_GCBase>(__uuidof(GCBase));
  FONTDESC description{};
  description.cbSizeofstruct = sizeof description;
  wchar_t arial[] = L"Arial";
  description.lpstrName = arial;
  description.cySize.int64 = 97500;  // 9.75 points
  description.sWeight = FW_BOLD;
  description.fUnderline = TRUE;
  ComRef<IDispatch> font;
  ASSERT_EQ(S_OK, OleCreateFontIndirect(&description, IID_IDispatch, font.PutVoid()));

  TFontStyle style{};
  ASSERT_EQ(S_OK, base->FontStyle(font.Get(), 255, &style));
  std::int32_t size = 0;
  EXPECT_EQ(NameOf(*font.Get(), size), Taken(style.Name));
  EXPECT_EQ(size, style.Size);
  EXPECT_EQ(5, style.Style);
  EXPECT_EQ(255, style.Color);

  const OwnedText courier = Bstr(u"Courier New");
  TFontStyle wanted{courier.Get(), 12, 10, 0};
  IDispatch* passed = font.Get();
  ASSERT_EQ(S_OK, base->SetFontFromFontStyle(&passed, &wanted));
  style = {};
  ASSERT_EQ(S_OK, base->FontStyle(font.Get(), 0, &style));
  EXPECT_EQ(NameOf(*font.Get(), size), Taken(style.Name));
  EXPECT_EQ(size, style.Size);
  EXPECT_NEAR(12, size, 1);
  EXPECT_EQ(10, style.Style);
}

// Numbers say what the members are, whatever the host calls them; the flags are read bold first.
TEST(HostFont, IsCalledByTheNumbersOfTheStandardFont) {
  const auto base = Create<_GCBase>(__uuidof(GCBase));
  const OwnedText name = Bstr(u"Arial");
  std::string read;
  const auto returns = [&](const char* pShown, VARIANT pValue) -> ScriptFunction {
    return [&read, pShown, pValue](WORD, const DISPPARAMS&, VARIANT* pResult) mutable {
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
  ASSERT_EQ(S_OK, base->FontStyle(&font, 255, &style));
  EXPECT_EQ(u"Arial", Taken(style.Name));
  EXPECT_EQ(10, style.Size);
  EXPECT_EQ(10, style.Style);
  EXPECT_EQ("name size bold italic underline strike", read);
}

}  // namespace
}  // namespace qzbase::tests
