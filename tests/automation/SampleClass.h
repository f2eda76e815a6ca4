// A class of the tests' own with a member for every way of passing a value, in a table like those of the library.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/automation/ClassEntry.h"
#include "qzbase/automation/Members.h"
#include "qzbase/automation/RecordObject.h"
#include "qzbase/runtime/Array.h"
#include "qzbase/runtime/Object.h"

namespace qzbase::tests {

enum SampleShade : std::int32_t { ShadeNone = 0, ShadeDark = 7 };

struct SamplePoint {
  double X = 0;
  std::u16string Label;
  std::array<std::uint8_t, 3> Bytes{};
};

class Sample : public runtime::Object {
 public:
  double Item(std::int32_t pIndex, std::int32_t pOffset) const { return items_[pIndex] + pOffset; }
  void LetItem(std::int32_t pIndex, std::int32_t pOffset, double pValue) { items_[pIndex] = pValue + pOffset; }
  std::int32_t Count() const noexcept { return items_.Size(); }
  const std::u16string& Title() const noexcept { return title_; }
  void LetTitle(std::u16string_view pTitle) { title_ = pTitle; }

  // Set only, let only, and both.
  void SetOnly(const runtime::Ref<Sample>& pOther) { title_ = pOther ? u"set " + pOther->title_ : u"set nothing"; }
  void LetOnly(const Sample& pOther) { title_ = u"let " + pOther.title_; }
  runtime::Ref<Sample> Both() const { return both_; }
  void LetBoth(const Sample& pOther) { title_ = u"let " + pOther.title_; }
  void SetBoth(runtime::Ref<Sample> pOther) { both_ = std::move(pOther); }

  // All arguments as one text.
  std::u16string Describe(std::u16string_view pText, std::int32_t pCount, double pFactor, const std::u16string& pWord,
                          bool pFlag, runtime::Date pDate, SampleShade pShade, const runtime::Variant& pAny,
                          const Sample* pOther) const;

  // Changes every argument, and then fails if it is told to.
  void Change(std::u16string& pText, std::int16_t& pShort, std::int32_t& pLong, float& pSingle, double& pDouble,
              bool& pFlag, std::uint8_t& pByte, runtime::Date& pDate, SampleShade& pShade, runtime::Variant& pAny,
              bool pFail);
  void ChangeArray(runtime::Array<std::int32_t>& pArray, bool pFail);
  void ChangePoint(SamplePoint& pPoint, bool pFail);
  void ChangeObject(runtime::Ref<Sample>& pObject, bool pFail);
  void ChangePoints(runtime::Array<SamplePoint>& pPoints, bool pFail);

  // By reference to the caller, though not changed.
  double Total(const runtime::Array<double>& pValues) const;
  std::u16string Join(runtime::Array<std::u16string> pTexts) const;
  SamplePoint Middle(SamplePoint pFirst, const SamplePoint& pSecond) const;
  runtime::Ref<runtime::Object> Same(runtime::Ref<runtime::Object> pAny) const { return pAny; }
  static SampleShade Darker(SampleShade pShade) { return static_cast<SampleShade>(pShade + 1); }

 private:
  runtime::Array<double> items_{1, 4};
  std::u16string title_;
  runtime::Ref<Sample> both_;
};

}  // namespace qzbase::tests

namespace qzbase::automation {

using tests::Sample;
using tests::SamplePoint;
using tests::SampleShade;

template <>
inline constexpr Identity identity<Sample> = {IdentityKind::ObjectClass, "Sample", "", "", "A sample."};
template <>
inline constexpr Identity identity<SamplePoint> = {IdentityKind::Record, "SamplePoint", "", "", "A record."};
template <>
inline constexpr Identity identity<SampleShade> = {IdentityKind::Enumeration, "SampleShade", "", "", "An enumeration."};

template <>
inline constexpr auto fields<SamplePoint> = record(field<&SamplePoint::X>("X", "A number."),
                                                   field<&SamplePoint::Label>("Label", "A text."),
                                                   field<&SamplePoint::Bytes>("Bytes", "An array of fixed length."));

template <>
inline constexpr auto members<Sample> = table(
    get<&Sample::Count>("Count", "The number of items."), let<&Sample::LetItem>("Item", {"pIndex", opt("pOffset", 0)}),
    get<&Sample::Item>("Item", {"pIndex", opt("pOffset", 0)}, "One item."),
    get<&Sample::Title>("Title", "The title.").asDefault(), let<&Sample::LetTitle>("Title").valueByRef(),
    set<&Sample::SetOnly>("Only", "Has a set and no let."), let<&Sample::LetOnly>("Plain", "Has a let and no set."),
    get<&Sample::Both>("Both", "Has all three."), let<&Sample::LetBoth>("Both"), set<&Sample::SetBoth>("Both"),
    method<&Sample::Describe>("Describe",
                              {"pText", opt("pCount", 2), opt("pFactor", 0.5), opt("pWord", u"word"),
                               opt("pFlag", true), opt("pDate", runtime::Date{36526}), opt("pShade", tests::ShadeDark),
                               opt("pAny"), opt("pOther")},
                              "All arguments as text."),
    method<&Sample::Change>("Change",
                            {"pText", "pShort", "pLong", "pSingle", "pDouble", "pFlag", "pByte", "pDate", "pShade",
                             "pAny", opt("pFail", false)},
                            "Changes them."),
    method<&Sample::ChangeArray>("ChangeArray", {"pArray", opt("pFail", false)}, "Doubles every element."),
    method<&Sample::ChangePoint>("ChangePoint", {"pPoint", opt("pFail", false)}, "Moves a point."),
    method<&Sample::ChangeObject>("ChangeObject", {"pObject", opt("pFail", false)}, "Replaces an object."),
    method<&Sample::ChangePoints>("ChangePoints", {"pPoints", opt("pFail", false)}, "Moves all points."),
    method<&Sample::Total>("Total", {byRef("pValues")}, "The sum of an array."),
    method<&Sample::Join>("Join", {"pTexts"}, "Texts in a row."),
    method<&Sample::Middle>("Middle", {byRef("pFirst"), byRef("pSecond")}, "A point between two."),
    method<&Sample::Same>("Same", {"pAny"}, "The object itself."),
    method<&Sample::Darker>("Darker", {"pShade"}, "The next shade."));

}  // namespace qzbase::automation
