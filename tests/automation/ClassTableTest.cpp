// Classes by name: what can be created, and that objects of every class answer calls by name.
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "qzbase/automation/ClassTable.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/runtime/Convert.h"
#include "tests/automation/SampleClass.h"
#include "tests/support/AllocationMeter.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using namespace automation;
using namespace runtime;

TEST(ClassTable, CreatesObjectsByName) {
  EXPECT_NE(std::dynamic_pointer_cast<CDblVector>(CreateObject(u"QZBase.CDblVector")), nullptr);
  EXPECT_NE(std::dynamic_pointer_cast<CDblVector>(CreateObject(u"qzbase.CDBLVECTOR")), nullptr);
  for (const std::u16string_view name : {u"", u"QZBase", u"QZBase.", u"CDblVector", u"QZBase.CDblVecto",
                                         u"QZBase.CDblVector.1", u"QZBase.TErrDesc", u"Other.CDblVector"})
    EXPECT_EQ(ErrorOf([&] { CreateObject(name); }), 429) << os::ToUtf8(name);
}

TEST(ClassTable, EveryObjectKnowsItsClass) {
  for (const ClassEntry* entry : Classes()) {
    const std::string_view name = entry->identity->name;
    const Ref<Object> object = CreateObject(std::u16string(u"QZBase.").append(os::FromUtf8(name)));
    EXPECT_EQ(ClassOf(*object), entry) << name;
    EXPECT_EQ(ErrorOf([&] { object->Call(u"NoSuchMember"); }), 438) << name;
  }
  Sample unlisted;
  EXPECT_EQ(ClassOf(unlisted), nullptr);
  EXPECT_EQ(ErrorOf([&] { unlisted.Get(u"Title"); }), 438);
}

TEST(ClassTable, ObjectsAnswerCallsByName) {
  const Ref<Object> vector = CreateObject(u"QZBase.CDblVector");
  vector->Call(u"SetFromString", u"(3;1;2)");
  vector->Call(u"sort", false);
  vector->Let(u"Value", 4, u"7");  // a slot behind the elements
  vector->Let(u"Size", 4);
  EXPECT_EQ(ToText(vector->Call(u"GetString")), u"(3;2;1;7)");
  EXPECT_EQ(ToLong(vector->Get(u"Size")), 4);
  EXPECT_TRUE(ToBoolean(vector->Call(u"IsEqual", vector->Call(u"GetCopy"))));
  EXPECT_EQ(ErrorOf([&] { vector->Get(u"Value", 17); }), 9);
  EXPECT_EQ(ErrorOf([&] { vector->Get(u""); }), 438) << "there is no default member";

  Variant position(1), value(0.5);
  const NamedArgument named[] = {{u"pvalue", &value}, {u"pAtPos", &position}};
  Invoke(*vector, u"InsertValue", CallKind::Method, {}, named);
  Invoke(*vector, u"InsertValue", CallKind::Method, std::vector{&position});
  EXPECT_EQ(ToText(vector->Call(u"GetString")), u"(-9.9999999999E+300;0.5;3;2;1;7)");
}

TEST(ClassTable, NumbersAreCalledForWithoutMemory) {
  const Ref<Object> vector = CreateObject(u"QZBase.CDblVector");
  vector->Let(u"Value", 3.0, 1);  // makes the slot; a thread's first conversion reads the user's settings
  const std::size_t before = RequestedBytes();
  vector->Let(u"Value", 3, 2.5);
  const Variant value = vector->Get(u"Value", 3.0);
  EXPECT_EQ(RequestedBytes() - before, 0u);
  EXPECT_EQ(ToDouble(value), 2.5);
}

// An object that the table does not know takes what it can.
TEST(ClassTable, ForeignObjectsTakePositionalArguments) {
  class Host : public Object {
    Variant Invoke(std::u16string_view pName, CallKind, std::span<Variant> pArguments) override {
      pArguments[0] = Variant(std::u16string(pName));
      return Variant(static_cast<std::int32_t>(pArguments.size()));
    }
  };
  Host host;
  Variant first(1), second(2);
  const NamedArgument named[] = {{u"pName", &second}};
  EXPECT_EQ(ToLong(Invoke(host, u"Paint", CallKind::Method, std::vector{&first, &second})), 2);
  EXPECT_EQ(ToText(first), u"Paint");
  EXPECT_EQ(ErrorOf([&] { Invoke(host, u"Paint", CallKind::Method, std::vector{&first}, named); }), 448);
  EXPECT_EQ(ErrorOf([&] { Invoke(host, u"Paint", CallKind::Method, std::vector<Variant*>{nullptr}); }), 449);
}

}  // namespace
}  // namespace qzbase::tests
