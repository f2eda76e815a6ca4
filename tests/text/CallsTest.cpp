// Members called by name, as calls.tsv has them: one row a call. Arguments stand between "|", as texts or as in the
// tables of tests/data; "NONE" is a call without any, "ARRAY" an array of texts from 7, "UNALLOCATED" one without
// dimensions. The answer is its text, or the number of the error, and behind "->" whatever the call has changed an
// argument into.
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/core/GCMath.h"
#include "qzbase/platform/GCBase.h"
#include "qzbase/platform/GCFileUtil.h"
#include "qzbase/runtime/Convert.h"
#include "qzbase/text/GCConvert.h"
#include "qzbase/text/GCStrings.h"
#include "tests/support/Corpus.h"
#include "tests/support/CorpusValue.h"

namespace qzbase::tests {
namespace {

using runtime::Array;
using runtime::Variant;
using runtime::VariantKind;

Variant ArgumentOf(std::u16string_view pField) {
  if (pField == u"ARRAY") return Array<std::u16string>(7, {u"kept"});
  if (pField == u"UNALLOCATED") return Array<std::u16string>();
  return ParseCorpusValue(ToUtf8(pField)).value_or(pField);
}

std::vector<Variant> ArgumentsOf(std::u16string pFields) {
  std::vector<Variant> arguments;
  if (pFields == u"NONE") return arguments;
  pFields += u'|';
  for (std::size_t start = 0, end; (end = pFields.find(u'|', start)) != std::u16string::npos; start = end + 1)
    arguments.push_back(ArgumentOf(std::u16string_view(pFields).substr(start, end - start)));
  return arguments;
}

std::string Show(const Variant& pValue) {
  if (const runtime::AnyArray* array = pValue.IfArray())
    return std::visit(
        [](const auto& pArray) {
          if (!pArray.IsAllocated()) return std::string("UNALLOCATED");
          std::string text = std::to_string(pArray.LowerBound());
          for (const auto& element : pArray.Elements()) text += " " + Show(Variant(element)) + ";";
          return text;
        },
        *array);
  if (const auto* object = pValue.If<Ref<runtime::Object>>()) return Show((*object)->Call(u"GetString"));
  const bool isMarked = pValue.IsEmpty() || pValue.Kind() == VariantKind::Integer;
  return isMarked ? CorpusValueText(pValue) : ToUtf8(runtime::ToText(pValue));
}

TEST(Calls, AnswerAsTheTableSays) {
  const std::map<std::string, Ref<runtime::Object>> objects = {{"GCBase", New<GCBase>()},
                                                               {"GCConvert", New<GCConvert>()},
                                                               {"GCFileUtil", New<GCFileUtil>()},
                                                               {"GCMath", New<GCMath>()},
                                                               {"GCStrings", New<GCStrings>()}};
  for (const CorpusRow& row : Corpus("../text/calls.tsv")) {
    const runtime::ScopedLocale locale(TestLocale(row["locale"]));
    const std::size_t dot = row["member"].find('.');
    const auto before = ArgumentsOf(row.Text("arguments"));
    auto arguments = before;
    const auto call = [&] {
      const auto name = row.Text("member").substr(dot + 1);
      std::string answer =
          Show(objects.at(row["member"].substr(0, dot))->Invoke(name, runtime::CallKind::Method, arguments));
      for (std::size_t i = 0; i < arguments.size(); ++i)
        if (Show(arguments[i]) != Show(before[i])) answer += " -> " + Show(arguments[i]);
      return answer;
    };
    EXPECT_EQ(TextOrError(call), row["answer"]) << row.Shown();
  }
}

}  // namespace
}  // namespace qzbase::tests
