// The lists of objects: CObjVector, whose objects are called by name, and CDblVectors.
#include <gtest/gtest.h>

#include "qzbase/data/CDblVectors.h"
#include "qzbase/data/CObjVector.h"
#include "qzbase/runtime/Convert.h"
#include "tests/support/Bytes.h"
#include "tests/support/Corpus.h"
#include "tests/support/ErrorOf.h"

namespace qzbase::tests {
namespace {

using namespace runtime;

constexpr std::int32_t kNotSet = NumberOf(RuntimeError::ObjectNotSet);
constexpr std::int32_t kNoMember = NumberOf(RuntimeError::MemberNotFound);

// An object of a host. Its default member is its title, which a list gives it from the key.
class Note : public Object {
 public:
  std::u16string title, text;

  Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) override {
    if (pName == u"GetCopy") {
      const auto copy = New<Note>();
      copy->text = text;
      return text == u"no copy" ? Variant() : Variant(copy);
    }
    if (pName == u"SaveToBuffer" && ToBoolean(pArguments[1]))
      return (*pArguments[0].If<Ref<Object>>())->Call(u"AddString", text);
    if (pName == u"LoadFromBuffer" && ToBoolean(pArguments[1]))
      return text = ToText((*pArguments[0].If<Ref<Object>>())->Call(u"NextString"));
    if (!pName.empty() || pKind != CallKind::Let) Raise(RuntimeError::MemberNotFound);
    return title = ToText(pArguments[0]);
  }
};

Ref<Note> NoteOf(std::u16string_view pText) {
  auto note = New<Note>();
  note->text = pText;
  return note;
}

std::u16string TextIn(const Ref<Object>& pNote) {
  return dynamic_cast<const Note&>(*pNote).text;
}

TEST(CObjVector, StoresCopiesOrTheObjectItself) {
  CObjVector list;
  const auto note = NoteOf(u"one");
  list.AddObject(u"A", note.get());
  list.LetSize(2);
  list.LetRef(2, note);
  list.LetKey(2, u"a");
  note->text = u"two";
  EXPECT_EQ(TextIn(list.Ref(1)), u"one");
  EXPECT_EQ(list.Ref(2), note);
  EXPECT_NE(list.Copy(2), note);
  list.ReplaceObject(1, list.Key(2), note.get());
  EXPECT_EQ(TextIn(list.Ref(1)), u"two");
  EXPECT_EQ(ToUtf8(list.KeyVec()->GetString()), "(a;a)");
  const auto copy = list.GetCopy();
  copy->CopyFrom(*copy);
  EXPECT_EQ(copy->Index(u"A"), 1);
  EXPECT_EQ(TextIn(copy->Ref(2)), u"two");
  list.DeleteObject(1);
  list.DeleteObject(7);
  EXPECT_EQ(list.Size(), 0);
  EXPECT_EQ(ErrorOf([&] { list.Ref(17); }), kSubscript);
}

TEST(CObjVector, KeepsWhatWasReachedBeforeAnError) {
  const struct {
    Ref<Object> object;
    std::int32_t error;
  } rows[] = {{nullptr, kNotSet}, {NoteOf(u"no copy"), kTypeMismatch}, {New<CBuffer>(), 0}, {New<Object>(), kNoMember}};
  for (const auto& row : rows) {
    CObjVector list;
    EXPECT_EQ(ErrorOf([&] { list.AddObject(u"key", row.object.get()); }), row.error);
    EXPECT_EQ(list.Index(u"KEY"), 1);
    EXPECT_EQ(list.Ref(1) == nullptr, row.error != 0);
    list.LetRef(1, row.object);
    EXPECT_EQ(ErrorOf([&] { list.Copy(1); }), row.error);
  }
  const auto itself = New<CObjVector>();
  itself->LetSize(1);
  itself->LetRef(1, itself);
  CBuffer buffer;
  for (int i = 0; i < 2; ++i) {  // the second time as the first
    EXPECT_EQ(ErrorOf([&] { itself->GetCopy(); }), NumberOf(RuntimeError::OutOfStackSpace));
    EXPECT_EQ(ErrorOf([&] { itself->SaveToBuffer(&buffer); }), NumberOf(RuntimeError::OutOfStackSpace));
  }
  itself->LetSize(0);
  itself->LetBlockSize(1);
  itself->LetRef(1, nullptr);
}

TEST(CObjVector, FindsKeysThatAreFree) {
  const ScopedLocale locale(TestLocale("en-US"));
  CObjVector list;
  const char16_t* const keys[] = {u"A", u"a1", u"A3", u"", u"A01"};
  list.LetSize(5);
  for (std::int32_t i = 0; i < 5; ++i) list.LetKey(i + 1, keys[i]);
  const std::pair<const char16_t*, const char16_t*> rows[] = {
      {u"b", u"b"}, {u"a", u"a2"}, {u"A1", u"A11"}, {u"", u"1"}, {u"A0", u"A0"}};
  for (const auto& [key, unique] : rows) EXPECT_EQ(list.GetUniqueKey(key), unique);
}

TEST(CObjVector, LoadsIntoTheObjectsThatItHolds) {
  CObjVector list;
  list.AddObject(u"first", NoteOf(u"one").get());
  list.AddObject(u"", New<CDblVectors>().get());
  CBuffer buffer;
  list.SaveToBuffer(&buffer);
  const std::string golden = ReadTestFile("golden/CObjVector.bin");
  EXPECT_EQ(buffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));

  CObjVector loaded;
  EXPECT_EQ(ErrorOf([&] { loaded.LoadFromBuffer(&buffer); }), kNotSet);
  EXPECT_EQ(loaded.Size(), 2);
  const auto note = NoteOf(u"");
  loaded.LetRef(1, note);
  loaded.LetKey(1, u"kept");
  loaded.LetRef(2, New<CDblVectors>());
  EXPECT_EQ(ErrorOf([&] { loaded.LoadFromBuffer(&buffer); }), kNoMember);  // a class without a default member
  EXPECT_EQ(note->title + u"," + note->text + u"," + loaded.Key(1), u"first,one,kept");
  loaded.SaveToBuffer(nullptr);
  loaded.LoadFromBuffer(nullptr);
}

// The slots that a vector has, by its block size.
std::int32_t CapacityOf(const CDblVector& pVector) {
  return pVector.GetArray().UpperBound();
}

TEST(CDblVectors, FillsEverySlot) {
  CDblVectors list;
  list.LetSize(3);
  EXPECT_EQ(CapacityOf(*list.VectorRef(2)), 3);
  EXPECT_EQ(ErrorOf([&] { list.VectorRef(4); }), kSubscript);
  const auto third = list.VectorRef(3);
  list.SetVector(2, nullptr);
  EXPECT_EQ(ErrorOf([&] { list.Vector(2); }), kNotSet);
  list.DeleteVector(1);
  EXPECT_EQ(ErrorOf([&] { list.LetBlockSize(5); }), kNotSet);
  list.LetSize(4);
  EXPECT_EQ(CapacityOf(*list.VectorRef(1)), 4);
  EXPECT_EQ(list.VectorRef(2), third);
  list.LetBlockSize(5);
  EXPECT_EQ(CapacityOf(*third), 5);
  EXPECT_EQ(ErrorOf([&] { list.DeleteVector(0); }), kSubscript);
  for (int i = 0; i < 5; ++i) list.DeleteVector(9);
  EXPECT_EQ(list.Size(), 0);
  list.LetSize(-2);
  EXPECT_EQ(ErrorOf([&] { list.AddVector(*third); }), kSubscript);  // no slot 0
  EXPECT_EQ(list.Size(), -1);
}

TEST(CDblVectors, CopiesStoresAndLoads) {
  CDblVectors list;
  const auto vector = New<CDblVector>();
  vector->SetFromString(u"1;2");
  list.AddVector(*vector);
  list.SetVector(1, vector);
  list.InsertVector(*vector, 1);
  list.InsertVector(CDblVector(), 2);
  vector->AddValue(3);
  EXPECT_EQ(list.Vector(1)->Size(), 2);
  EXPECT_EQ(list.VectorRef(3), vector);
  EXPECT_EQ(CapacityOf(*list.VectorRef(1)), 16);
  list.LetVector(3, *list.VectorRef(1));
  EXPECT_EQ(vector->Size(), 2);
  list.CopyFrom(list);

  CBuffer buffer;
  list.SaveToBuffer(&buffer);
  const std::string golden = ReadTestFile("golden/CDblVectors.bin");
  EXPECT_EQ(buffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));
  const auto copy = list.GetCopy();
  EXPECT_TRUE(copy->IsEqual(list));
  copy->LetVector(2, *vector);
  EXPECT_FALSE(copy->IsEqual(list));
  copy->LoadFromBuffer(&buffer);
  EXPECT_TRUE(copy->IsEqual(list));
  copy->DeleteVector(1);
  EXPECT_FALSE(copy->IsEqual(list));
  copy->SaveToBuffer(nullptr);
}

}  // namespace
}  // namespace qzbase::tests
