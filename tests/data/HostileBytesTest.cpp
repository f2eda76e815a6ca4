// Every golden file, cut at every length and with every bit turned over, is loaded by everything that loads: only the
// documented errors come, and no load asks for much memory.
#include <string>

#include <gtest/gtest.h>

#include "qzbase/data/CBoolVector.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CStrVector.h"
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

template <class Vector>
void Load(CBuffer& pBuffer) {
  Vector vector;
  vector.LoadFromBuffer(&pBuffer);
}

void LoadWithEverything(const Bytes& pBytes, const std::string& pWhat) {
  static const std::int32_t kInvVarType = NumberOf(BuiltInError::InvVarType);
  constexpr void (*kLoaders[])(CBuffer&) = {&Load<CDblVector>,
                                            &Load<CLngVector>,
                                            &Load<CStrVector>,
                                            &Load<CBoolVector>,
                                            &ReadFirst<&CBuffer::NextLong>,
                                            &ReadFirst<&CBuffer::NextString>,
                                            &ReadFirst<&CBuffer::NextData>,
                                            &ReadFirst<&CBuffer::NextDouble>,
                                            &ReadFirst<&CBuffer::NextBoolean>,
                                            &ReadFirst<&CBuffer::GetString>};
  CBuffer buffer;
  for (std::size_t i = 0; i < std::size(kLoaders); ++i) {
    buffer.LetByteArray({0, pBytes});
    const std::size_t before = RequestedBytes();
    const std::int32_t error = ErrorOf([&] { kLoaders[i](buffer); });
    const bool documented = error == 0 || error == kInvVarType || error == kInvalidArgument || error == kOverflow ||
                            error == kOutOfMemory || error == kSubscript;
    ASSERT_TRUE(documented) << pWhat << ", loader " << i << ": error " << error;
    ASSERT_LT(RequestedBytes() - before, kMostMemory) << pWhat << ", loader " << i;
  }
}

Bytes Golden(const std::string& pName) {
  const std::string file = ReadTestFile("golden/" + pName + ".bin");
  return Bytes(file.begin(), file.end());
}

TEST(HostileBytes, AreReadWholeWhereNothingIsWrong) {
  struct Row {
    const char* name;
    const char* dump;
  };
  const Row rows[] = {
      {"CBuffer",
       "/Test#1;#2,<0>,<1>;H\u00F6he \u4E2D;-9.9999999999E+300;-2147483636;True;01.01.2000 12:00:00;254;16777215;"
       "\\Test;"},
      {"CDblVector", "/VE#1;4;1.5;-9.9999999999E+300;0;1E+308;\\VE;"},
      {"CLngVector", "/VE#1;3;7;-2147483636;2147483647;\\VE;"},
      {"CStrVector", "/VE#1;4;a;b;~;;\u00C4\u4E2D;\\VE;"},
      {"CBoolVector", "/VE#1;3;True;False;True;\\VE;"},
  };
  const runtime::ScopedLocale locale(TestLocale("en-US"));
  for (const Row& row : rows) {
    CBuffer buffer;
    buffer.LetByteArray(Storage(Golden(row.name)));
    EXPECT_EQ(ToUtf8(buffer.GetString()), row.dump);
  }
}

TEST(HostileBytes, FailOnlyAsDocumented) {
  const runtime::ScopedLocale locale(TestLocale("en-US"));
  for (const std::string name : {"CBuffer", "CDblVector", "CLngVector", "CStrVector", "CBoolVector"}) {
    const Bytes golden = Golden(name);
    for (std::size_t length = 1; length <= golden.size(); ++length)
      LoadWithEverything(Bytes(golden.begin(), golden.begin() + static_cast<std::ptrdiff_t>(length)),
                         name + " cut to " + std::to_string(length));
    for (std::size_t bit = 0; bit < 8 * golden.size(); ++bit) {
      Bytes bytes = golden;
      bytes[bit / 8] ^= static_cast<std::uint8_t>(1 << bit % 8);
      LoadWithEverything(bytes, name + " with bit " + std::to_string(bit) + " turned over");
    }
  }
}

TEST(HostileBytes, CountsUpToTheToleranceLoadZeros) {
  struct Row {
    std::int32_t count;
    std::int32_t error;
  };
  for (const Row& row : {Row{65536, 0}, Row{65537, kOutOfMemory}, Row{-1, 0}, Row{0x7FFFFFFF, kOutOfMemory}}) {
    CBuffer buffer;
    buffer.AddTag(u"VE#1");
    buffer.AddLong(row.count);
    CStrVector vector;
    const std::size_t before = RequestedBytes();
    EXPECT_EQ(ErrorOf([&] { vector.LoadFromBuffer(&buffer); }), row.error) << row.count;
    EXPECT_LT(RequestedBytes() - before, kMostMemory);
    EXPECT_EQ(vector.Size(), row.error == 0 ? row.count : 0);
  }
}

}  // namespace
}  // namespace qzbase::tests
