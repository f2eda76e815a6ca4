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

constexpr const char* kBufferDump =
    "/Test#1;#2,<0>,<1>;H\u00F6he \u4E2D;-9.9999999999E+300;-2147483636;True;01.01.2000 "
    "12:00:00;254;16777215;\\Test;";

// Every golden file, what loads it and what it holds; nothing where the tests of its room compare the bytes.
constexpr struct {
  const char* name;
  Loader load;
  const char* dump;
} kGolden[] = {
    {"CBuffer", &ReadRecords, kBufferDump},
    {"CBuffer", &Dump, kBufferDump},
    {"CDblVector", &Load<CDblVector>, "/VE#1;4;1.5;-9.9999999999E+300;0;1E+308;\\VE;"},
    {"CLngVector", &Load<CLngVector>, "/VE#1;3;7;-2147483636;2147483647;\\VE;"},
    {"CStrVector", &Load<CStrVector>, "/VE#1;4;a;b;~;;\u00C4\u4E2D;\\VE;"},
    {"CBoolVector", &Load<CBoolVector>, "/VE#1;3;True;False;True;\\VE;"},
    {"CVector", &LoadVectors,
     "/VE#1;3;True;False;True;\\VE;\n/VE#1;4;1.5;2;2.5;0;\\VE;\n/VE#1;3;2;3;-1;\\VE;"
     "\n/VE#1;3;a;\u00C4\u4E2D;2,5;False;\\VE;\n/VE#1;2;01.01.1900 12:00:00;02.01.1900 00:00:00;\\VE;"
     "\n/VE#1;1;7;\\VE;\n/VE#1;2;\\VE;\n/VE#1;1;\\VE;\n/VE#1;5;7;x;01.01.1900 00:00:00;1.5;\\VE;"
     "\n/VE#1;1;255;\\VE;"},
    {"CObjVector", &Load<CObjVector>, "/VO#1;2;first;one;;\n/DblVectors#1;0;\\DblVectors;\\VO;"},
    {"CDblVectors", &Load<CDblVectors>,
     "/DblVectors#1;3;\n/VE#1;2;1;2;\\VE;\n/VE#1;0;\\VE;\n/VE#1;2;1;2;\\VE;\\DblVectors;"},
    {"CDblMatrix", &Load<CDblMatrix>, "/MA#1;2;2;\n/VE#1;2;1.5;-9.9999999999E+300;\\VE;\n/VE#1;3;0;2;3;\\VE;\\MA;"},
    {"CMatrix", &Load<CMatrix>, "/MA#1;2;2;\n/VE#1;2;\u00C4a;7;\\VE;\n/VE#1;2;True;-0.5;\\VE;\\MA;"},
    {"CEntryData", &Load<CEntryData>,
     "/EntryData#1;4;2;3;\n/VE#1;2;7;-2147483636;\\VE;4;\n/VE#1;2;\u00C4\u4E2D;~;\\VE;"
     "5;\n/VE#1;2;01.01.1900 12:00:00;30.12.1899 00:00:00;\\VE;1;\n/VE#1;2;True;False;\\VE;\\EntryData;"},
    {"CTable", &Load<CTable>,
     "/Table#1;t;\n/DV#1;2;"
     "\n/ED#1;\n/VD#2;A;;;2;;False;;3;;False;\\VD;\n/CD#2;A;1;True;;;1000;True;False;False;\\CD;\\ED;"
     "\n/ED#1;\n/VD#2;B;;;4;;False;;3;;False;\\VD;\n/CD#2;B;1;True;;;1000;True;False;False;\\CD;\\ED;\\DV;"
     "\n/EntryData#1;2;1;2;\n/VE#1;1;2.5;\\VE;4;\n/VE#1;1;~;\\VE;\\EntryData;\\Table;"},
    {"TVarDesc.1", &Load<TVarDesc>, "/VD#1;Temp;Temperature;\u00B0C;2;0.00;True;A*B;255;app;\\VD;"},
    {"TVarDesc", &Load<TVarDesc>, "/VD#2;Temp;Temperature;\u00B0C;2;0.00;True;A*B;255;app;True;\\VD;"},
    {"TCtrlDesc.1", &Load<TCtrlDesc>, "/CD#1;Temp;2;False;1200;False;True;True;True;\\CD;"},
    {"TCtrlDesc", &Load<TCtrlDesc>, "/CD#2;Temp;2;True;[0;100];0.5;1200;False;True;True;\\CD;"},
    {"TEntryDesc", &Load<TEntryDesc>,
     "/ED#1;\n/VD#2;Temp;Temperature;\u00B0C;2;0.00;True;A*B;255;app;True;\\VD;"
     "\n/CD#2;Temp;2;True;[0;100];0.5;1200;False;True;True;\\CD;\\ED;"},
    {"CVarDescs", &Load<CVarDescs>,
     "/VV#1;2;\n/VD#2;L;;;2;;False;;0;;False;\\VD;\n/VD#2;n;;;3;;False;;0;;False;\\VD;\\VV;"},
    {"CEntryDescs", &Load<CEntryDescs>,
     "/DV#1;2;\n/ED#1;\n/VD#2;L;;;2;;False;;0;;False;\\VD;\n/CD#2;L;1;True;;;1000;True;False;False;\\CD;\\ED;"
     "\n/ED#1;\n/VD#2;n;;;3;;False;;0;;False;\\VD;\n/CD#2;n;1;True;;;1000;True;False;False;\\CD;\\ED;\\DV;"},
    {"CTypedInfo", &Load<CTypedInfo>,
     "/TypedInfo#1;\n/DV#1;3;"
     "\n/ED#1;\n/VD#2;n;;;3;;False;;0;;False;\\VD;\n/CD#2;n;1;True;;;1000;True;False;False;\\CD;\\ED;"
     "\n/ED#1;\n/VD#2;o;;;7;;False;;0;;False;\\VD;\n/CD#2;o;1;True;;;1000;True;False;False;\\CD;\\ED;"
     "\n/ED#1;\n/VD#2;d;;;2;;False;;0;;False;\\VD;\n/CD#2;d;1;True;;;1000;True;False;False;\\CD;\\ED;\\DV;"
     "3;1.5;\\TypedInfo;"},
    {"CLocalGUI", &Load<CLocalGUI>,
     "Form1;Form;2;Caption;\u00DCbersicht;Tag;;2;Frame;;0;1;Option1_2;;0;0;List1;;1;List(3);Blau;0;"},
    {"CLayoutGraph", &Load<CLayoutGraph>, nullptr},
    {"CLayoutGraph3D", &Load<CLayoutGraph3D>, nullptr},
    {"CLayoutTable", &Load<CLayoutTable>, nullptr},
};

TEST(HostileBytes, FailOnlyAsDocumented) {
  const runtime::ScopedLocale locale(TestLocale("en-US"));
  std::set<Loader> all;
  for (const auto& golden : kGolden) all.insert(golden.load);
  for (const auto& [name, load, dump] : kGolden) {
    const std::string file = ReadTestFile(std::string("golden/") + name + ".bin");
    Bytes bytes(file.begin(), file.end());
    CBuffer whole;
    whole.LetByteArray(Storage(bytes));
    if (dump != nullptr) {
      EXPECT_EQ(ToUtf8(whole.GetString()), dump);
    }
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
