// The library and the models agree on random calls.
//
//   --gtest_random_seed=7               other sequences
//   QZBASE_MODEL_SECONDS=60             more of them
//   QZBASE_MODEL_SEQUENCE="123 456"     the numbers that a failure printed, with --gtest_filter=*/CTable
#include <cstdlib>
#include <filesystem>
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
    const std::string difference = numbers ? models::Run(GetParam(), sequence, true)
                                           : RunRandomly(GetParam(), seed, seconds ? std::atof(seconds) : 0.3);
    EXPECT_TRUE(difference.empty()) << name << "\n" << difference;
  }
}

INSTANTIATE_TEST_SUITE_P(Families, Models, testing::ValuesIn(Families()),
                         [](const auto& pInfo) { return os::ToUtf8(pInfo.param[0]->name); });

// Each golden file, and older records over newer ones: library and model hold the same afterwards, and save the bytes
// of the file again where it is of today's version.
TEST(GoldenFiles, LoadAndSaveAsModelsDo) {
  const runtime::ScopedLocale locale(tests::TestLocale("en-US"));
  for (const Family& each : SavedClasses()) {
    World world(each, false);
    for (const char* version : {"", ".1", ""}) {
      const std::string file = "golden/" + os::ToUtf8(each.front()->name) + version + ".bin";
      if (*version != 0 && !std::filesystem::exists(tests::TestFilePath(file))) continue;
      const std::string content = tests::ReadTestFile(file) + '\0';
      const Array<Byte> bytes(0, {content.begin(), content.end()});
      const Pair object = world.Object(0), buffer = world.Object(1);
      for (const auto& [self, holder] : {std::pair(object.library, buffer.library), {object.model, buffer.model}}) {
        (*holder.If<Something>())->Let(u"ByteArray", bytes);
        for (const char16_t* call : {u"LoadFromBuffer", u"SaveToBuffer"}) (*self.If<Something>())->Call(call, holder);
        if (*version != 0) continue;
        EXPECT_EQ(std::get<Array<Byte>>(*(*holder.If<Something>())->Get(u"ByteArray").IfArray()), bytes) << file;
      }
      world.CompareAll();
      EXPECT_EQ(world.difference, "") << file;
    }
  }
}

}  // namespace
}  // namespace qzbase::models
