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

// An object of a host, whose default member is its title.
struct Note : Object {
  explicit Note(std::u16string pText) : text(std::move(pText)) {}

  Variant Invoke(std::u16string_view pName, CallKind pKind, std::span<Variant> pArguments) override {
    if (pName == u"GetCopy") return text == u"no copy" ? Variant() : Variant(New<Note>(text));
    if (pName.empty() && pKind == CallKind::Let) return title = ToText(pArguments[0]);
    if (pName != u"SaveToBuffer" && pName != u"LoadFromBuffer") Raise(RuntimeError::MemberNotFound);
    EXPECT_TRUE(ToBoolean(pArguments[1]));
    const auto buffer = *pArguments[0].If<Ref<Object>>();
    return pName == u"SaveToBuffer" ? buffer->Call(u"AddString", text) : text = ToText(buffer->Call(u"NextString"));
  }

  std::u16string title, text;
};

template <class List>
void ExpectGolden(const List& pList, CBuffer& pBuffer, const char* pFile) {
  pList.SaveToBuffer(&pBuffer);
  const std::string golden = ReadTestFile(pFile);
  EXPECT_EQ(pBuffer.ByteArray(), Storage(Bytes(golden.begin(), golden.end())));
}

TEST(CObjVector, MayHoldItself) {
  const auto list = New<CObjVector>();
  list->LetSize(1);
  list->LetRef(1, list);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(ErrorOf([&] { list->GetCopy(); }), NumberOf(RuntimeError::OutOfStackSpace));
  list->LetRef(1, nullptr);
}

TEST(CObjVector, FindsKeysThatAreFree) {
  CObjVector list;
  for (const char16_t* key : {u"A", u"a1", u"A3", u"", u"A01"}) {
    list.LetSize(list.Size() + 1);
    list.LetKey(list.Size(), key);
  }
  const std::pair<const char16_t*, const char16_t*> rows[] = {
      {u"b", u"b"}, {u"a", u"a2"}, {u"A1", u"A11"}, {u"", u"1"}, {u"A0", u"A0"}};
  for (const auto& [key, unique] : rows) EXPECT_EQ(list.GetUniqueKey(key), unique);
}

TEST(CObjVector, LoadsIntoTheObjectsThatItHolds) {
  CObjVector list, loaded;
  CBuffer buffer;
  const auto note = New<Note>(u"one");
  list.AddObject(u"first", note.get());
  list.AddObject(u"", New<CDblVectors>().get());
  note->text = u"later";
  ExpectGolden(list, buffer, "golden/CObjVector.bin");
  EXPECT_EQ(ErrorOf([&] { loaded.LoadFromBuffer(&buffer); }), kObjectNotSet);
  loaded.LetRef(1, note);
  loaded.LetKey(1, u"kept");
  loaded.LetRef(2, New<CDblVectors>());
  // Its class has no default member.
  EXPECT_EQ(ErrorOf([&] { loaded.LoadFromBuffer(&buffer); }), NumberOf(RuntimeError::MemberNotFound));
  EXPECT_EQ(note->title + u"," + note->text + u"," + loaded.Key(1), u"first,one,kept");
  note->text = u"no copy";
  EXPECT_EQ(ErrorOf([&] { loaded.AddObject(u"key", note.get()); }), kTypeMismatch);
  EXPECT_EQ(loaded.Index(u"KEY"), 3);  // without an object
}

TEST(CDblVectors, FillsEverySlot) {
  CDblVectors list;
  list.LetSize(3);
  const auto third = list.VectorRef(3);
  list.SetVector(2, nullptr);
  list.DeleteVector(1);
  EXPECT_EQ(ErrorOf([&] { list.LetBlockSize(5); }), kObjectNotSet);
  list.LetSize(4);
  EXPECT_EQ(list.VectorRef(1)->GetArray().UpperBound(), 4);
  EXPECT_EQ(list.VectorRef(2), third);
}

TEST(CDblVectors, CopiesStoresAndLoads) {
  CDblVectors list;
  CBuffer buffer;
  const auto vector = New<CDblVector>();
  vector->SetFromString(u"1;2");
  list.AddVector(*vector);
  list.InsertVector(CDblVector(), 9);
  list.InsertVector(CDblVector(), 2);
  list.SetVector(3, vector);
  vector->AddValue(3);
  list.LetVector(3, *list.Vector(1));
  ExpectGolden(list, buffer, "golden/CDblVectors.bin");
  const auto copy = list.GetCopy();
  copy->LetVector(2, *vector);
  EXPECT_FALSE(copy->IsEqual(list));
  copy->LoadFromBuffer(&buffer);
  EXPECT_TRUE(copy->IsEqual(list));
}

}  // namespace
}  // namespace qzbase::tests
