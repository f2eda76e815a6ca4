// Every golden file, cut at every length and with every bit turned over, is loaded by everything that loads: only the
// documented errors come, and no load asks for much memory.
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "qzbase/data/CBoolVector.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CDblVectors.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CObjVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/data/CVector.h"
#include "qzbase/desc/CTypedInfo.h"
#include "qzbase/desc/CVarDescs.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

constexpr std::size_t kMostMemory = std::size_t{32} * 1024 * 1024;

template <auto Next>
void ReadFirst(CBuffer& pBuffer) {
  pBuffer.ResetPos();
  pBuffer.NextTag();
  (pBuffer.*Next)();
}

template <class Saved>
void Load(CBuffer& pBuffer) {
  Saved object;
  object.LoadFromBuffer(&pBuffer);
}

void LoadWithEverything(const Bytes& pBytes, const std::string& pWhat) {
  constexpr void (*kLoaders[])(CBuffer&) = {&Load<CDblVector>,
                                            &Load<CLngVector>,
                                            &Load<CStrVector>,
                                            &Load<CBoolVector>,
                                            &Load<CVector>,
                                            &Load<CDblVectors>,
                                            &Load<CObjVector>,
                                            &Load<TVarDesc>,
                                            &Load<TCtrlDesc>,
                                            &Load<TEntryDesc>,
                                            &Load<CVarDescs>,
                                            &Load<CEntryDescs>,
                                            &Load<CTypedInfo>,
                                            &ReadFirst<&CBuffer::NextLong>,
                                            &ReadFirst<&CBuffer::NextString>,
                                            &ReadFirst<&CBuffer::NextData>,
                                            &ReadFirst<&CBuffer::NextDouble>,
                                            &ReadFirst<&CBuffer::NextBoolean>,
                                            &ReadFirst<&CBuffer::GetString>};
  static const std::set<std::int32_t> kDocumented = {
      0, kInvalidArgument, kOverflow, kOutOfMemory, kSubscript, kObjectNotSet, NumberOf(BuiltInError::InvVarType)};
  CBuffer buffer;
  for (std::size_t i = 0; i < std::size(kLoaders); ++i) {
    buffer.LetByteArray({0, pBytes});
    const std::size_t before = RequestedBytes();
    const std::int32_t error = ErrorOf([&] { kLoaders[i](buffer); });
    ASSERT_TRUE(kDocumented.count(error)) << pWhat << ", loader " << i << ": error " << error;
    ASSERT_LT(RequestedBytes() - before, kMostMemory) << pWhat << ", loader " << i;
  }
}

// Every golden file and what it holds.
constexpr std::pair<const char*, const char*> kGolden[] = {
    {"CBuffer",
     "/Test#1;#2,<0>,<1>;H\u00F6he \u4E2D;-9.9999999999E+300;-2147483636;True;01.01.2000 "
     "12:00:00;254;16777215;\\Test;"},
    {"CDblVector", "/VE#1;4;1.5;-9.9999999999E+300;0;1E+308;\\VE;"},
    {"CLngVector", "/VE#1;3;7;-2147483636;2147483647;\\VE;"},
    {"CStrVector", "/VE#1;4;a;b;~;;\u00C4\u4E2D;\\VE;"},
    {"CBoolVector", "/VE#1;3;True;False;True;\\VE;"},
    {"CVector",
     "/VE#1;3;True;False;True;\\VE;\n/VE#1;4;1.5;2;2.5;0;\\VE;\n/VE#1;3;2;3;-1;\\VE;"
     "\n/VE#1;3;a;\u00C4\u4E2D;2,5;False;\\VE;\n/VE#1;2;01.01.1900 12:00:00;02.01.1900 00:00:00;\\VE;"
     "\n/VE#1;1;7;\\VE;\n/VE#1;2;\\VE;\n/VE#1;1;\\VE;\n/VE#1;5;7;x;01.01.1900 00:00:00;1.5;\\VE;"
     "\n/VE#1;1;255;\\VE;"},
    {"CObjVector", "/VO#1;2;first;one;;\n/DblVectors#1;0;\\DblVectors;\\VO;"},
    {"CDblVectors", "/DblVectors#1;3;\n/VE#1;2;1;2;\\VE;\n/VE#1;0;\\VE;\n/VE#1;2;1;2;\\VE;\\DblVectors;"},
    {"TVarDesc.1", "/VD#1;Temp;Temperature;\u00B0C;2;0.00;True;A*B;255;app;\\VD;"},
    {"TVarDesc", "/VD#2;Temp;Temperature;\u00B0C;2;0.00;True;A*B;255;app;True;\\VD;"},
    {"TCtrlDesc.1", "/CD#1;Temp;2;False;1200;False;True;True;True;\\CD;"},
    {"TCtrlDesc", "/CD#2;Temp;2;True;[0;100];0.5;1200;False;True;True;\\CD;"},
    {"TEntryDesc",
     "/ED#1;\n/VD#2;Temp;Temperature;\u00B0C;2;0.00;True;A*B;255;app;True;\\VD;"
     "\n/CD#2;Temp;2;True;[0;100];0.5;1200;False;True;True;\\CD;\\ED;"},
    {"CVarDescs", "/VV#1;2;\n/VD#2;L;;;2;;False;;0;;False;\\VD;\n/VD#2;n;;;3;;False;;0;;False;\\VD;\\VV;"},
    {"CEntryDescs",
     "/DV#1;2;\n/ED#1;\n/VD#2;L;;;2;;False;;0;;False;\\VD;\n/CD#2;L;1;True;;;1000;True;False;False;\\CD;\\ED;"
     "\n/ED#1;\n/VD#2;n;;;3;;False;;0;;False;\\VD;\n/CD#2;n;1;True;;;1000;True;False;False;\\CD;\\ED;\\DV;"},
    {"CTypedInfo",
     "/TypedInfo#1;\n/DV#1;3;"
     "\n/ED#1;\n/VD#2;n;;;3;;False;;0;;False;\\VD;\n/CD#2;n;1;True;;;1000;True;False;False;\\CD;\\ED;"
     "\n/ED#1;\n/VD#2;o;;;7;;False;;0;;False;\\VD;\n/CD#2;o;1;True;;;1000;True;False;False;\\CD;\\ED;"
     "\n/ED#1;\n/VD#2;d;;;2;;False;;0;;False;\\VD;\n/CD#2;d;1;True;;;1000;True;False;False;\\CD;\\ED;\\DV;"
     "3;1.5;\\TypedInfo;"},
};

TEST(HostileBytes, FailOnlyAsDocumented) {
  const runtime::ScopedLocale locale(TestLocale("en-US"));
  for (const auto& [name, dump] : kGolden) {
    const std::string file = ReadTestFile(std::string("golden/") + name + ".bin");
    const Bytes golden(file.begin(), file.end());
    CBuffer whole;
    whole.LetByteArray(Storage(golden));
    EXPECT_EQ(ToUtf8(whole.GetString()), dump);
    for (std::size_t length = 1; length <= golden.size(); ++length)
      LoadWithEverything(Bytes(golden.begin(), golden.begin() + static_cast<std::ptrdiff_t>(length)),
                         std::string(name) + " cut to " + std::to_string(length));
    for (std::size_t bit = 0; bit < 8 * golden.size(); ++bit) {
      Bytes bytes = golden;
      bytes[bit / 8] ^= static_cast<std::uint8_t>(1 << bit % 8);
      LoadWithEverything(bytes, std::string(name) + " with bit " + std::to_string(bit) + " turned over");
    }
  }
}

TEST(HostileBytes, CountsUpToTheToleranceLoadZeros) {
  const std::pair<std::int32_t, std::int32_t> rows[] = {
      {65536, 0}, {65537, kOutOfMemory}, {-1, 0}, {0x7FFFFFFF, kOutOfMemory}};
  for (const auto& [count, expected] : rows) {
    CBuffer buffer;
    buffer.AddTag(u"VE#1");
    buffer.AddLong(count);
    CStrVector vector;
    const std::size_t before = RequestedBytes();
    const std::int32_t error = ErrorOf([&] { vector.LoadFromBuffer(&buffer); });
    EXPECT_EQ(error, expected) << count;
    EXPECT_LT(RequestedBytes() - before, kMostMemory);
    EXPECT_EQ(vector.Size(), expected == 0 ? count : 0);
  }
}

}  // namespace
}  // namespace qzbase::tests
