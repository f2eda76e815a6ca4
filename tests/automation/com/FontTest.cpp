// The system's standard font in the hands of the library, which calls it by name.
#include <olectl.h>

#include "Client.h"

namespace qzbase::tests {
namespace {

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
  EXPECT_EQ(u"Arial", Taken(style.Name));
  EXPECT_EQ(10, style.Size);
  EXPECT_EQ(5, style.Style);
  EXPECT_EQ(255, style.Color);

  const OwnedText courier = Bstr(u"Courier New");
  TFontStyle wanted{courier.Get(), 12, 10, 0};
  IDispatch* passed = font.Get();
  ASSERT_EQ(S_OK, base->SetFontFromFontStyle(&passed, &wanted));
  style = {};
  ASSERT_EQ(S_OK, base->FontStyle(font.Get(), 0, &style));
  EXPECT_EQ(u"Courier New", Taken(style.Name));
  EXPECT_EQ(12, style.Size);
  EXPECT_EQ(10, style.Style);
}

}  // namespace
}  // namespace qzbase::tests
