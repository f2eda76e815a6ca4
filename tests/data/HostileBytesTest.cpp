// Every golden file of containers and descriptors is loaded by the class that saved it, cut at every length and with
// every bit turned over, and by all others too, whole and cut at every eighth length: only the documented errors come,
// and no load asks for much memory.
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "qzbase/data/CBoolVector.h"
#include "qzbase/data/CDblMatrix.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CDblVectors.h"
#include "qzbase/data/CEntryData.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CMatrix.h"
#include "qzbase/data/CObjVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/data/CTable.h"
#include "qzbase/data/CVector.h"
#include "qzbase/desc/CTypedInfo.h"
#include "qzbase/desc/CVarDescs.h"
#include "qzbase/layout/CLayoutGraph.h"
#include "qzbase/layout/CLayoutGraph3D.h"
#include "qzbase/layout/CLayoutTable.h"
#include "qzbase/locale/CLocalGUI.h"
#include "qzbase/runtime/Locale.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

constexpr std::size_t kMostMemory = std::size_t{32} * 1024 * 1024;

using Loader = void (*)(CBuffer& pBuffer);

template <class Saved>
void Load(CBuffer& pBuffer) {
  Saved object;
  object.LoadFromBuffer(&pBuffer);
}

// The lists of the golden file one behind the other, up to those that cannot be read back.
void LoadVectors(CBuffer& pBuffer) {
  for (const QZVarType type :
       {EVTBoolean, EVTDouble, EVTLong, EVTString, EVTDate, EVTEnum, EVTObject, QZVarType(99), EVTInvalid}) {
    CVector vector;
    vector.LetVarType(type);
    vector.LoadFromBuffer(&pBuffer, true);
  }
}

// One record of every kind, as the golden file of the buffer has them.
void ReadRecords(CBuffer& pBuffer) {
  pBuffer.NextTag(), pBuffer.NextData(), pBuffer.NextString(), pBuffer.NextDouble(), pBuffer.NextLong();
  pBuffer.NextBoolean(), pBuffer.NextDate(), pBuffer.NextByte(), pBuffer.NextColor();
}

void Dump(CBuffer& pBuffer) {
  pBuffer.GetString();
}

void LoadHostile(const Bytes& pBytes, const std::set<Loader>& pLoaders, const char* pName, const char* pHow,
                 std::size_t pWhere) {
  static const std::set<std::int32_t> kDocumented = {
      0, kInvalidArgument, kOverflow, kOutOfMemory, kSubscript, kObjectNotSet, NumberOf(BuiltInError::InvVarType)};
  CBuffer buffer;
  buffer.LetByteArray({0, pBytes});
  for (const Loader load : pLoaders) {
    buffer.ResetPos();
    const std::size_t before = RequestedBytes();
    const std::int32_t error = ErrorOf([&] { load(buffer); });
    ASSERT_TRUE(kDocumented.count(error)) << pName << pHow << pWhere << ": error " << error;
    ASSERT_LT(RequestedBytes() - before, kMostMemory) << pName << pHow << pWhere;
  }
}

// What loads each golden file.
constexpr std::pair<const char*, Loader> kGolden[] = {
    {"CBuffer", &ReadRecords},
    {"CBuffer", &Dump},
    {"CDblVector", &Load<CDblVector>},
    {"CLngVector", &Load<CLngVector>},
    {"CStrVector", &Load<CStrVector>},
    {"CBoolVector", &Load<CBoolVector>},
    {"CVector", &LoadVectors},
    {"CObjVector", &Load<CObjVector>},
    {"CDblVectors", &Load<CDblVectors>},
    {"CDblMatrix", &Load<CDblMatrix>},
    {"CMatrix", &Load<CMatrix>},
    {"CEntryData", &Load<CEntryData>},
    {"CTable", &Load<CTable>},
    {"TVarDesc.1", &Load<TVarDesc>},
    {"TVarDesc", &Load<TVarDesc>},
    {"TCtrlDesc.1", &Load<TCtrlDesc>},
    {"TCtrlDesc", &Load<TCtrlDesc>},
    {"TEntryDesc", &Load<TEntryDesc>},
    {"CVarDescs", &Load<CVarDescs>},
    {"CEntryDescs", &Load<CEntryDescs>},
    {"CTypedInfo", &Load<CTypedInfo>},
    {"CLocalGUI", &Load<CLocalGUI>},
    {"CLayoutGraph", &Load<CLayoutGraph>},
    {"CLayoutGraph3D", &Load<CLayoutGraph3D>},
    {"CLayoutTable", &Load<CLayoutTable>},
};

TEST(HostileBytes, FailOnlyAsDocumented) {
  const runtime::ScopedLocale locale(TestLocale("en-US"));
  std::set<Loader> all;
  for (const auto& golden : kGolden) all.insert(golden.second);
  for (const auto& [name, load] : kGolden) {
    const std::string file = ReadTestFile(std::string("golden/") + name + ".bin");
    Bytes bytes(file.begin(), file.end());
    for (std::size_t bit = 0; bit < 8 * bytes.size(); ++bit) {
      const auto flip = static_cast<std::uint8_t>(1 << bit % 8);
      bytes[bit / 8] ^= flip;
      LoadHostile(bytes, std::set{load}, name, " with turned bit ", bit);
      bytes[bit / 8] ^= flip;
    }
    LoadHostile(bytes, all, name, " of ", bytes.size());
    for (; !bytes.empty(); bytes.pop_back())
      LoadHostile(bytes, bytes.size() % 8 == 0 ? all : std::set{load}, name, " cut to ", bytes.size());
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
