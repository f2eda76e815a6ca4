// Every golden file of containers and descriptors is loaded by the class that saved it, cut at every length and with
// every bit turned over, and by all others too, whole and cut at every eighth length: only the documented errors come,
// and no load asks for much memory.
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "qzbase/automation/ClassTable.h"
#include "qzbase/data/CVector.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

constexpr std::size_t kMostMemory = std::size_t{32} * 1024 * 1024;

// The golden files; what stands in front of a "." is the class that loads them.
constexpr const char* kGolden[] = {"CBuffer",     "CDblVector",   "CLngVector",     "CStrVector",  "CBoolVector",
                                   "CVector",     "CObjVector",   "CDblVectors",    "CDblMatrix",  "CMatrix",
                                   "CEntryData",  "CTable",       "TVarDesc",       "TVarDesc.1",  "TCtrlDesc",
                                   "TCtrlDesc.1", "TEntryDesc",   "CVarDescs",      "CEntryDescs", "CTypedInfo",
                                   "CLocalGUI",   "CLayoutGraph", "CLayoutGraph3D", "CLayoutTable"};

std::string ClassOf(const std::string& pFile) {
  return pFile.substr(0, pFile.find('.'));
}

// Loads an object of a class; lists of all types one behind the other; a buffer as text and as one record of every
// kind.
void Load(const std::string& pClass, const Ref<CBuffer>& pBuffer) {
  if (pClass == "CVector") {
    for (const std::int32_t type : {1, 2, 3, 4, 5, 8, 7, 99, 0}) {  // as the file has them
      CVector vector;
      vector.LetVarType(QZVarType(type));
      vector.LoadFromBuffer(pBuffer.get(), true);
    }
  } else if (pClass != "CBuffer") {
    automation::CreateObject(FromUtf8("QZBase." + pClass))->Call(u"LoadFromBuffer", pBuffer);
  } else {
    pBuffer->GetString();
    pBuffer->ResetPos();
    pBuffer->NextTag(), pBuffer->NextData(), pBuffer->NextString(), pBuffer->NextDouble(), pBuffer->NextLong();
    pBuffer->NextBoolean(), pBuffer->NextDate(), pBuffer->NextByte(), pBuffer->NextColor();
  }
}

void LoadHostile(const Bytes& pBytes, const std::set<std::string>& pClasses, const std::string& pHow) {
  static const std::set<std::int32_t> kDocumented = {
      0, kInvalidArgument, kOverflow, kOutOfMemory, kSubscript, kObjectNotSet, NumberOf(BuiltInError::InvVarType)};
  const auto buffer = New<CBuffer>();
  buffer->LetByteArray({0, pBytes});
  for (const std::string& each : pClasses) {
    buffer->ResetPos();
    const std::size_t before = RequestedBytes();
    const std::int32_t error = ErrorOf([&] { Load(each, buffer); });
    ASSERT_TRUE(kDocumented.count(error)) << each << " from " << pHow << ": error " << error;
    ASSERT_LT(RequestedBytes() - before, kMostMemory) << each << " from " << pHow;
  }
}

TEST(HostileBytes, FailOnlyAsDocumented) {
  const runtime::ScopedLocale locale(TestLocale("en-US"));
  std::set<std::string> all;
  for (const char* name : kGolden) all.insert(ClassOf(name));
  for (const std::string name : kGolden) {
    const std::string file = ReadTestFile("golden/" + name + ".bin");
    Bytes bytes(file.begin(), file.end());
    for (std::size_t bit = 0; bit < 8 * bytes.size(); ++bit) {
      const auto flip = static_cast<std::uint8_t>(1 << bit % 8);
      bytes[bit / 8] ^= flip;
      LoadHostile(bytes, {ClassOf(name)}, name + " with turned bit " + std::to_string(bit));
      bytes[bit / 8] ^= flip;
    }
    LoadHostile(bytes, all, name);
    for (; !bytes.empty(); bytes.pop_back())
      LoadHostile(bytes, bytes.size() % 8 == 0 ? all : std::set{ClassOf(name)},
                  name + " cut to " + std::to_string(bytes.size()));
  }
}

TEST(HostileBytes, CountsUpToTheToleranceLoadZeros) {
  const std::pair<std::int32_t, std::int32_t> rows[] = {
      {65536, 0}, {65537, kOutOfMemory}, {-1, 0}, {0x7FFFFFFF, kOutOfMemory}};
  for (const auto& [count, expected] : rows) {
    CBuffer buffer;
    buffer.AddTag(u"VE#1");
    buffer.AddLong(count);
    CVector vector;
    vector.LetVarType(EVTString);
    const std::size_t before = RequestedBytes();
    const std::int32_t error = ErrorOf([&] { vector.LoadFromBuffer(&buffer); });
    EXPECT_EQ(error, expected) << count;
    EXPECT_LT(RequestedBytes() - before, kMostMemory);
    EXPECT_EQ(vector.Size(), expected == 0 ? count : 0);
  }
}

}  // namespace
}  // namespace qzbase::tests
