#include "qzbase/automation/idl/TypelibDefaults.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace qzbase::automation::idl {
namespace {

constexpr std::size_t kHeaderSize = 0x54;
constexpr std::size_t kFlagsAt = 0x14;
constexpr std::uint32_t kHasHelpDll = 0x100;
constexpr std::size_t kTypeCountAt = 0x20;
constexpr std::size_t kSegmentSize = 16;
constexpr std::size_t kSegments = 15;
constexpr std::size_t kTypes = 0;
constexpr std::size_t kValues = 11;
constexpr std::size_t kTypeSize = 0x64;
constexpr std::size_t kParameterSize = 12;
constexpr std::uint32_t kRecordHasDefaults = 0x1000;
constexpr std::uint32_t kParameterHasDefault = 0x20;
constexpr std::uint32_t kNothing = 0xFFFFFFFF;

struct Value {
  std::uint16_t type;  // VT_R8 or VT_DATE
  double number;
};

std::vector<Value> FloatingDefaults(const Catalog& pCatalog) {
  std::vector<Value> values;
  for (const ClassDesc& each : pCatalog.classes)
    for (const MemberDesc& member : each.members->rows)
      for (const ParameterDesc& parameter : each.members->Parameters(member))
        if (IsFloatingDefault(parameter))
          values.push_back({static_cast<std::uint16_t>(parameter.type.base == BaseType::Date ? 7 : 5),
                            parameter.defaultValue.kind == DefaultValue::Kind::Double
                                ? parameter.defaultValue.real
                                : static_cast<double>(parameter.defaultValue.number)});
  return values;
}

class Library {
 public:
  explicit Library(std::string& pBytes) : bytes_(pBytes) {
    segments_ = kHeaderSize + 4 * std::size_t{At(kTypeCountAt)} + ((At(kFlagsAt) & kHasHelpDll) != 0 ? 4 : 0);
  }

  // False where there are more or fewer places than values.
  bool Fill(const std::vector<Value>& pValues) {
    const std::size_t values = Segment(kValues);
    std::uint32_t end = At(values + 4);
    std::size_t used = 0;
    for (const std::size_t place : EmptyPlaces()) {
      if (used == pValues.size()) return false;
      Put(place, end);
      end += kStored;
      ++used;
    }
    Insert(pValues);
    return used == pValues.size();
  }

 private:
  static constexpr std::uint32_t kStored = 12;  // a type, eight bytes, two to fill up

  std::uint32_t At(std::size_t pAt) const {
    std::uint32_t number = 0;
    std::memcpy(&number, bytes_.substr(pAt, sizeof number).data(), sizeof number);
    return number;
  }
  void Put(std::size_t pAt, std::uint32_t pNumber) {
    bytes_.replace(pAt, sizeof pNumber, reinterpret_cast<const char*>(&pNumber), sizeof pNumber);
  }
  std::size_t Segment(std::size_t pSegment) const { return segments_ + pSegment * kSegmentSize; }

  std::vector<std::size_t> EmptyPlaces() const {
    std::vector<std::size_t> places;
    for (std::size_t type = 0; type < At(kTypeCountAt); ++type) {
      const std::size_t info = At(Segment(kTypes)) + type * kTypeSize;
      const std::size_t members = At(info + 0x18) & 0xFFFF;
      std::size_t record = At(info + 4) + 4;
      for (std::size_t i = 0; i < members; ++i) {
        AppendEmptyPlaces(places, record);
        record += At(record) & 0xFFFF;
      }
    }
    return places;
  }

  void AppendEmptyPlaces(std::vector<std::size_t>& pPlaces, std::size_t pRecord) const {
    if ((At(pRecord + 0x10) & kRecordHasDefaults) == 0) return;
    const std::size_t count = At(pRecord + 0x14) & 0xFFFF;
    const std::size_t parameters = pRecord + (At(pRecord) & 0xFFFF) - count * kParameterSize;
    for (std::size_t i = 0; i < count; ++i) {
      const std::size_t place = parameters - 4 * (count - i);
      const bool hasDefault = (At(parameters + i * kParameterSize + 8) & kParameterHasDefault) != 0;
      if (hasDefault && At(place) == kNothing) pPlaces.push_back(place);
    }
  }

  // Puts the values at the end of their segment; all that lies behind moves.
  void Insert(const std::vector<Value>& pValues) {
    const std::size_t values = Segment(kValues);
    const std::uint32_t end = At(values) + At(values + 4);
    const auto size = static_cast<std::uint32_t>(kStored * pValues.size());
    std::string stored;
    for (const Value& value : pValues) {
      stored.append(reinterpret_cast<const char*>(&value.type), sizeof value.type);
      stored.append(reinterpret_cast<const char*>(&value.number), sizeof value.number).append("WW");
    }
    for (std::size_t type = 0; type < At(kTypeCountAt); ++type) {
      const std::size_t info = At(Segment(kTypes)) + type * kTypeSize;
      if (At(info + 4) >= end) Put(info + 4, At(info + 4) + size);
    }
    for (std::size_t i = 0; i < kSegments; ++i)
      if (At(Segment(i)) != kNothing && At(Segment(i)) >= end) Put(Segment(i), At(Segment(i)) + size);
    Put(values + 4, At(values + 4) + size);
    bytes_.insert(end, stored);
  }

  std::string& bytes_;
  std::size_t segments_ = 0;
};

}  // namespace

bool IsFloatingDefault(const ParameterDesc& pParameter) {
  const BaseType base = pParameter.type.base;
  return pParameter.IsOptional() && !pParameter.IsByRef() && (base == BaseType::Double || base == BaseType::Date);
}

bool WriteFloatingDefaults(std::string& pLibrary, const Catalog& pCatalog) {
  try {
    return pLibrary.starts_with("MSFT") && Library(pLibrary).Fill(FloatingDefaults(pCatalog));
  } catch (const std::exception&) {  // a position outside
    return false;
  }
}

}  // namespace qzbase::automation::idl
