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

}  // namespace
}  // namespace qzbase::tests
