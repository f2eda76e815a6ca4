#include "examples/parameters/German.h"

#include <string>
#include <string_view>

#include "qzbase/locale/GCResource.h"

using namespace qzbase;

namespace {

constexpr char16_t kSeparator = u'\0';

struct Translation {
  std::u16string_view key;
  std::u16string_view text;
};

constexpr Translation kTexts[] = {
    {u"allowed range", u"erlaubt:"},
    {u"as", u"als"},
    {u"accepted", u"angenommen"},
    {u"To", u"bis"},
    {u"Or", u"oder"},
    {u"Boolean", u"Ja/Nein"},
    {u"Number", u"Zahl"},
    {u"Integer", u"Ganze Zahl"},
    {u"Text", u"Text"},
    {u"Date", u"Datum"},
    {u"Enum", u"Auswahl"},
};

struct TranslatedError {
  std::u16string_view module;
  std::u16string_view id;
  std::u16string_view message;
};

constexpr TranslatedError kErrors[] = {
    {u"Format", u"InValue", u"Bitte geben Sie einen gültigen Wert ein"},
    {u"Format", u"InvFormat", u"Ungültiges Format"},
    {u"Format", u"InvRange", u"Wert nicht erlaubt"},
    {u"Format", u"EmptyText", u"Der Text braucht mindestens ein Zeichen"},
};

}  // namespace

void SpeakGerman() {
  CStrVector texts;
  for (const Translation& each : kTexts)
    texts.AddValue(std::u16string(each.key) + kSeparator + std::u16string(each.text));
  CStrVector errors;
  for (const TranslatedError& each : kErrors)
    errors.AddValue(std::u16string(each.module) + kSeparator + std::u16string(each.id) + kSeparator +
                    std::u16string(each.message));
  GCResource::SetLocalizedStrings(texts, &errors);
}
