#include <gtest/gtest.h>

#include "qzbase/os/CodePage.h"
#include "qzbase/os/RegistryStore.h"
#include "qzbase/persist/GCRegistry.h"
#include "qzbase/runtime/Convert.h"
#include "tests/persist/ScratchStore.h"
#include "tests/support/Bytes.h"
#include "tests/support/CorpusValue.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using os::RegistryKind;
using os::RegistryResult;
using runtime::Variant;

constexpr std::int32_t kNotFound = 2;

class Registry : public testing::Test {
 protected:
  const std::u16string section_ = ScratchStore::kSection + u"\\Settings";
  const std::string bytes_ = os::ToCodePage(section_);

  std::string Shown(const char16_t* pKey) const {
    return CorpusValueText(GCRegistry::REGGetValue(HKEY_CURRENT_USER, section_, pKey));
  }
  Ref<CBuffer> Buffer(const char16_t* pKey) const {
    return GCRegistry::REGGetBuffer(HKEY_CURRENT_USER, section_, pKey);
  }
  std::int32_t Save(const char16_t* pKey, const CBuffer& pBuffer) const {
    return GCRegistry::REGSaveBuffer(HKEY_CURRENT_USER, section_, pKey, pBuffer);
  }
  std::int32_t Delete(const char16_t* pKey) const {
    return ErrorOf([&] { GCRegistry::REGDeleteValue(HKEY_CURRENT_USER, section_, pKey); });
  }

  // The value as the platform has it: "kind: bytes".
  std::string Stored(const char* pKey) const {
    os::RegistryValue value;
    const RegistryResult result = os::ReadRegistryValue(HKEY_CURRENT_USER, bytes_, pKey, value);
    if (result != RegistryResult::Success) return "result " + std::to_string(static_cast<std::int32_t>(result));
    return std::to_string(static_cast<std::uint32_t>(value.kind)) + ": " + ToHex(value.data);
  }
  void Store(const char* pKey, RegistryKind pKind, std::string_view pHex) const {
    EXPECT_EQ(os::WriteRegistryValue(HKEY_CURRENT_USER, bytes_, pKey, {pKind, FromHex(pHex)}), RegistryResult::Success);
  }

 private:
  ScratchStore scratch_;
};

TEST_F(Registry, KeepsNumbersAndTexts) {
  const struct {
    Variant value;
    std::string_view stored, read;
  } rows[] = {
      {std::int16_t{-2}, "4: FE FF FF FF", "I4:-2"},
      {258, "4: 02 01 00 00", "I4:258"},
      {std::u16string_view(u"abc\0", 4), "1: 61 62 63 00", "BSTR:abc"},
      {u"", "1: ", "BSTR:"},
      {u"a\u4E2Db", "1: 61 3F 62 00", "BSTR:a?b"},
      {1.5, "result 2", "EMPTY"},
      {true, "result 2", "EMPTY"},
  };
  for (const auto& [value, stored, read] : rows) {
    EXPECT_EQ(GCRegistry::REGSaveValue(HKEY_CURRENT_USER, section_, u"Key", value), 0);
    EXPECT_EQ(Stored("Key"), stored);
    EXPECT_EQ(Shown(u"kEY"), read);
    EXPECT_EQ(Delete(u"KEY"), stored == "result 2" ? kNotFound : 0);
  }
  Store("Key", RegistryKind::Binary, "01 02 03 04");
  EXPECT_EQ(Shown(u"Key"), "EMPTY");
  Store("Key", RegistryKind::Number, "01 02");  // as another program may have written it
  EXPECT_EQ(Shown(u"Key"), "I4:513");
  for (const auto& [text, read] : {std::pair("abc", "BSTR:ab"), std::pair("a", "BSTR:a")}) {
    ScratchStore::StoreUnended(bytes_, "Key", text);
    EXPECT_EQ(Shown(u"Key"), read);
  }
}

TEST_F(Registry, KeepsBuffers) {
  CBuffer buffer;
  EXPECT_EQ(Save(u"Empty", buffer), 0);
  EXPECT_EQ(Stored("Empty"), "3: 03 26 A6 15 AB 01");
  EXPECT_EQ(Buffer(u"Empty")->Size(), 6);
  buffer.AddData({0, Bytes(50'000)});
  EXPECT_EQ(Save(u"Full", buffer), 0);
  EXPECT_TRUE(Buffer(u"full")->BinaryEqual(buffer));
  Store("Old", RegistryKind::Binary, "03 26 A6 15 AB 00 07 00 00 00");
  EXPECT_EQ(Buffer(u"Old")->Size(), 10);
  EXPECT_EQ(Buffer(u"Old")->NextLong(), 7);  // the stored header says that there are no markers
  Store("Text", RegistryKind::Text, "61 62 63 64 65 66 67 68");
  for (const char16_t* key : {u"Text", u"None", u""}) EXPECT_EQ(Buffer(key)->Size(), 6) << "a new one";
}

TEST_F(Registry, MakesSectionsAndDeletesValues) {
  EXPECT_EQ(GCRegistry::REGCreateNewSection(HKEY_CURRENT_USER, section_ + u"\\Below"), 0);
  EXPECT_EQ(GCRegistry::REGSaveValue(HKEY_CURRENT_USER, section_ + u"\\\u4E2D", u"Key", 1), 0);
  EXPECT_EQ(runtime::ToLong(GCRegistry::REGGetValue(HKEY_CURRENT_USER, section_ + u"\\?", u"Key")), 1);
  Store("", RegistryKind::Number, "07 00 00 00");  // a section's own value
  for (std::int32_t root = 0; root <= 6; ++root)
    EXPECT_NE(GCRegistry::REGDeleteSection(TRegKey(root), section_), 0) << root;
  EXPECT_EQ(Shown(u""), "I4:7") << "nothing was deleted";
  EXPECT_EQ(Delete(u""), 0);

  // The platform's number travels as an error, with the information that was set before.
  ModError::SetAddErrInfo(u"before");
  EXPECT_EQ(Delete(u""), kNotFound);
  EXPECT_EQ(runtime::LastError().description, u"before");
}

}  // namespace
}  // namespace qzbase::tests
