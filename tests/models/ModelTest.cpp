// The library and the models agree on random calls.
//
//   --gtest_random_seed=7               other sequences
//   QZBASE_MODEL_SECONDS=60             more of them
//   QZBASE_MODEL_SEQUENCE="123 456"     the numbers that a failure printed, with --gtest_filter=*/Table
#include <cstdlib>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/models/Families.h"
#include "tests/models/World.h"
#include "tests/support/Corpus.h"

namespace qzbase::models {
namespace {

class Models : public testing::TestWithParam<Family> {};

TEST_P(Models, AgreeWithTheLibrary) {
  const char* numbers = std::getenv("QZBASE_MODEL_SEQUENCE");
  const char* seconds = std::getenv("QZBASE_MODEL_SECONDS");
  const auto seed = static_cast<std::uint64_t>(GTEST_FLAG_GET(random_seed));
  std::istringstream text(numbers ? numbers : "");
  const std::vector<std::uint64_t> sequence{std::istream_iterator<std::uint64_t>(text), {}};
  for (const char* name : {"en-US", "de-DE"}) {
    const runtime::ScopedLocale locale(tests::TestLocale(name));
    const std::string difference = numbers ? models::Run(GetParam().classes, sequence)
                                           : RunRandomly(GetParam().classes, seed, seconds ? std::atof(seconds) : 0.25);
    EXPECT_TRUE(difference.empty()) << name << "\n" << difference;
  }
}

INSTANTIATE_TEST_SUITE_P(Families, Models, testing::ValuesIn(Families()),
                         [](const auto& pInfo) { return std::string(pInfo.param.name); });

// Each golden file, and older records over newer ones: library and model hold the same afterwards, and save the bytes
// of the file again where it is of today's version.
TEST(GoldenFiles, LoadAndSaveAsModelsDo) {
  const runtime::ScopedLocale locale(tests::TestLocale("en-US"));
  const auto bytesOf = [](const std::string& pName) {
    std::string file = tests::ReadTestFile("golden/" + pName + ".bin");
    file += '\0';
    return Array<Byte>(0, {file.begin(), file.end()});
  };
  const struct {
    const Class& table;
    std::vector<std::string> files;
  } rows[] = {
      {DblVector::kTable(), {"CDblVector"}},
      {Vector<Long>::kTable(), {"CLngVector"}},
      {Vector<Text>::kTable(), {"CStrVector"}},
      {Vector<bool>::kTable(), {"CBoolVector"}},
      {DblVectors::kTable(), {"CDblVectors"}},
      {Matrix<double>::kTable(), {"CDblMatrix"}},
      {EntryData::kTable(), {"CEntryData"}},
      {DescTable::kTable(), {"CTable"}},
      {VarDescs::kTable(), {"CVarDescs"}},
      {EntryDescs::kTable(), {"CEntryDescs"}},
      {EntryDesc::kTable(), {"TEntryDesc"}},
      {TypedInfo::kTable(), {"CTypedInfo"}},
      {VarDesc::kTable(), {"TVarDesc.1", "TVarDesc", "TVarDesc.1", "TVarDesc"}},
      {CtrlDesc::kTable(), {"TCtrlDesc", "TCtrlDesc.1", "TCtrlDesc"}},
  };
  for (const auto& row : rows) {
    const Class* const classes[] = {&row.table, &Buffer::kTable()};
    World world(classes, false);
    for (const std::string& file : row.files) {
      const Pair object = world.Object(0), buffer = world.Object(1);
      for (const auto& [self, bytes] : {std::pair(object.library, buffer.library), {object.model, buffer.model}}) {
        const auto& holder = *bytes.If<Ref<runtime::Object>>();
        holder->Let(u"ByteArray", bytesOf(file));
        (*self.If<Ref<runtime::Object>>())->Call(u"LoadFromBuffer", bytes);
        (*self.If<Ref<runtime::Object>>())->Call(u"SaveToBuffer", bytes);
        if (file.find('.') == std::string::npos) {
          EXPECT_EQ(std::get<Array<Byte>>(*holder->Get(u"ByteArray").IfArray()), bytesOf(file)) << file;
        }
      }
      world.CompareAll();
      EXPECT_EQ(world.Difference(), "") << file;
    }
  }
}

}  // namespace
}  // namespace qzbase::models
