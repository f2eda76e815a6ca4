#include "qzbase/runtime/NamedNumberFormat.h"

#include "qzbase/runtime/NumberPattern.h"
#include "qzbase/runtime/NumberSection.h"
#include "qzbase/runtime/NumberText.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase::runtime {
namespace {

struct NamedPattern {
  NamedNumberFormat format;
  std::u16string_view name;
  std::u16string_view pattern;  // empty: not made by a pattern
};

constexpr NamedPattern kNamedPatterns[] = {
    {NamedNumberFormat::GeneralNumber, u"General Number", u""},
    {NamedNumberFormat::Currency, u"Currency", u""},
    {NamedNumberFormat::Fixed, u"Fixed", u"0.00"},
    {NamedNumberFormat::Standard, u"Standard", u"#,##0.00"},
    {NamedNumberFormat::Percent, u"Percent", u"0.00%"},
    {NamedNumberFormat::Scientific, u"Scientific", u"0.00E+00"},
    {NamedNumberFormat::YesNo, u"Yes/No", u""},
    {NamedNumberFormat::TrueFalse, u"True/False", u""},
    {NamedNumberFormat::OnOff, u"On/Off", u""},
};

struct TruthWords {
  std::u16string_view language;
  std::u16string_view yes, no;
  std::u16string_view isTrue, isFalse;
  std::u16string_view on, off;
};

constexpr TruthWords kTruthWords[] = {
    {u"en", u"Yes", u"No", u"True", u"False", u"On", u"Off"},  // first: stands for every language not listed
    {u"cs", u"Ano", u"Ne", u"Pravda", u"Nepravda", u"Zapnuto", u"Vypnuto"},
    {u"da", u"Ja", u"Nej", u"Sand", u"Falsk", u"Til", u"Fra"},
    {u"de", u"Ja", u"Nein", u"Wahr", u"Falsch", u"Ein", u"Aus"},
    {u"es", u"Sí", u"No", u"Verdadero", u"Falso", u"Activado", u"Desactivado"},
    {u"fi", u"Kyllä", u"Ei", u"Tosi", u"Epätosi", u"Päällä", u"Pois päältä"},
    {u"fr", u"Oui", u"Non", u"Vrai", u"Faux", u"Actif", u"Inactif"},
    {u"hu", u"Igen", u"Nem", u"Igaz", u"Hamis", u"Be", u"Ki"},
    {u"it", u"Sì", u"No", u"Vero", u"Falso", u"On", u"Off"},
    {u"nb", u"Ja", u"Nei", u"Sann", u"Usann", u"På", u"Av"},
    {u"nl", u"Ja", u"Nee", u"Waar", u"Onwaar", u"Aan", u"Uit"},
    {u"pl", u"Tak", u"Nie", u"Prawda", u"Fałsz", u"Włączone", u"Wyłączone"},
    {u"pt", u"Sim", u"Não", u"Verdadeiro", u"Falso", u"Ligado", u"Desligado"},
    {u"sv", u"Ja", u"Nej", u"Sant", u"Falskt", u"På", u"Av"},
};

const TruthWords& WordsOf(std::u16string_view pLocaleName) noexcept {
  const std::u16string_view language = pLocaleName.substr(0, pLocaleName.find(u'-'));
  for (const TruthWords& words : kTruthWords)
    if (EqualName(words.language, language)) return words;
  return kTruthWords[0];
}

}  // namespace

NamedNumberFormat FindNamedNumberFormat(std::u16string_view pPattern) noexcept {
  // Nearly all patterns begin with a place or a sign, which no name does.
  if (pPattern.empty() || pPattern.front() < u'A') return NamedNumberFormat::None;
  for (const NamedPattern& named : kNamedPatterns)
    if (named.name.size() == pPattern.size() && EqualName(named.name, pPattern)) return named.format;
  return NamedNumberFormat::None;
}

std::u16string FormatNamed(double pValue, NamedNumberFormat pFormat, const LocaleRules& pRules) {
  switch (pFormat) {
    case NamedNumberFormat::GeneralNumber:
      return NumberText(pValue, pRules);
    case NamedNumberFormat::Currency:
      return FormatNumber(pValue, {.kind = NumberStyle::Kind::Currency}, pRules);
    case NamedNumberFormat::YesNo:
    case NamedNumberFormat::TrueFalse:
    case NamedNumberFormat::OnOff:
      return std::u16string(TruthWord(pFormat, pValue != 0, pRules.name));
    default:
      break;
  }
  std::u16string text;
  for (const NamedPattern& named : kNamedPatterns)
    if (named.format == pFormat) AppendNumber(text, DecimalDigits(pValue), named.pattern, SignRule::Minus, pRules);
  return text;
}

std::u16string_view TruthWord(NamedNumberFormat pFormat, bool pValue, std::u16string_view pLocaleName) noexcept {
  const TruthWords& words = WordsOf(pLocaleName);
  switch (pFormat) {
    case NamedNumberFormat::YesNo:
      return pValue ? words.yes : words.no;
    case NamedNumberFormat::OnOff:
      return pValue ? words.on : words.off;
    default:
      return pValue ? words.isTrue : words.isFalse;
  }
}

}  // namespace qzbase::runtime
