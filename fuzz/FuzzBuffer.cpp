// The tagged buffer on hostile bytes: reads in any order, dumps, checksums and vectors loaded from it fail only with
// the errors that their documentation names.
#include <cstdlib>

#include "fuzz/Input.h"
#include "qzbase/data/CBoolVector.h"
#include "qzbase/data/CDblVector.h"
#include "qzbase/data/CLngVector.h"
#include "qzbase/data/CStrVector.h"
#include "qzbase/persist/CBuffer.h"

using namespace qzbase;

namespace {

void ReadOne(CBuffer& pBuffer, std::uint8_t pChoice) {
  switch (pChoice % 16) {
    case 0:
      pBuffer.NextTag();
      break;
    case 1:
      pBuffer.NextData();
      break;
    case 2:
      pBuffer.NextString();
      break;
    case 3:
      pBuffer.NextDouble();
      break;
    case 4:
      pBuffer.NextDate();
      break;
    case 5:
      pBuffer.NextLong();
      break;
    case 6:
      pBuffer.NextBoolean();
      break;
    case 7:
      pBuffer.NextByte();
      break;
    case 8:
      pBuffer.NextColor();
      break;
    case 9:
      pBuffer.NextObject(static_cast<QZVarType>(pChoice / 16));
      break;
    case 10:
      pBuffer.GetString();
      break;
    case 11:
      CDblVector().LoadFromBuffer(&pBuffer, pChoice >= 128);
      break;
    case 12:
      CLngVector().LoadFromBuffer(&pBuffer, pChoice >= 128);
      break;
    case 13:
      CStrVector().LoadFromBuffer(&pBuffer, pChoice >= 128);
      break;
    case 14:
      CBoolVector().LoadFromBuffer(&pBuffer, pChoice >= 128);
      break;
    default:
      pBuffer.ResetPos();
      break;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t pSize) {
  fuzz::Input input(pData, pSize);
  const auto reads = input.TakeBytes(8);
  if (input.IsEmpty()) return 0;
  CBuffer buffer;
  buffer.LetByteArray(runtime::Array<std::uint8_t>(0, input.TakeRest()));
  for (const std::uint8_t read : reads) {
    try {
      ReadOne(buffer, read);
    } catch (const runtime::AutomationError& error) {
      constexpr std::int32_t kExpected[] = {5, 6, 7, 9, 1010};
      if (std::find(std::begin(kExpected), std::end(kExpected), error.Number()) == std::end(kExpected)) std::abort();
    }
  }
  if (!buffer.BinaryEqual(*buffer.GetCopy())) std::abort();
  return 0;
}
