#include "tests/automation/SampleClass.h"

#include <numeric>

#include "qzbase/runtime/Convert.h"

namespace qzbase::tests {

using namespace runtime;

namespace {

void FailIf(bool pFail) {
  if (pFail) Raise(RuntimeError::DiskFull);
}

}  // namespace

std::u16string Sample::Describe(std::u16string_view pText, std::int32_t pCount, double pFactor,
                                const std::u16string& pWord, bool pFlag, Date pDate, SampleShade pShade,
                                const Variant& pAny, const Sample* pOther) const {
  std::u16string text(pText);
  for (const Variant& each : {Variant(pCount), Variant(pFactor), Variant(pWord), Variant(pFlag), Variant(pDate.days),
                              Variant(pShade), pAny, pOther ? Variant(pOther->title_) : Variant(u"unset")})
    text.append(u"|").append(ToText(each));
  return text;
}

void Sample::Change(std::u16string& pText, std::int16_t& pShort, std::int32_t& pLong, float& pSingle, double& pDouble,
                    bool& pFlag, std::uint8_t& pByte, Date& pDate, SampleShade& pShade, Variant& pAny, bool pFail) {
  pText += u"!";
  ++pShort;
  ++pLong;
  pSingle += 1;
  pDouble += 1;
  pFlag = !pFlag;
  ++pByte;
  pDate.days += 1;
  pShade = Darker(pShade);
  pAny = Variant(u"changed");
  FailIf(pFail);
}

void Sample::ChangeArray(Array<std::int32_t>& pArray, bool pFail) {
  for (std::int32_t& each : pArray.Elements()) each *= 2;
  pArray.Elements().push_back(pArray.Size());
  FailIf(pFail);
}

void Sample::ChangePoint(SamplePoint& pPoint, bool pFail) {
  pPoint.X += 1;
  pPoint.Label += u"+";
  FailIf(pFail);
}

void Sample::ChangeObject(Ref<Sample>& pObject, bool pFail) {
  pObject = New<Sample>();
  FailIf(pFail);
}

void Sample::ChangePoints(Array<SamplePoint>& pPoints, bool pFail) {
  for (SamplePoint& each : pPoints.Elements()) ChangePoint(each, pFail);
}

double Sample::Total(const Array<double>& pValues) const {
  return std::accumulate(pValues.begin(), pValues.end(), 0.0);
}

std::u16string Sample::Join(Array<std::u16string> pTexts) const {
  for (std::u16string& each : pTexts.Elements()) each += u';';
  return std::accumulate(pTexts.begin(), pTexts.end(), std::u16string());
}

SamplePoint Sample::Middle(SamplePoint pFirst, const SamplePoint& pSecond) const {
  pFirst.X = (pFirst.X + pSecond.X) / 2;
  pFirst.Label += pSecond.Label;
  return pFirst;
}

}  // namespace qzbase::tests
