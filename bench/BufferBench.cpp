// Records appended to and read from the tagged buffer, and its checksum.
#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "qzbase/persist/CBuffer.h"

namespace {

using namespace qzbase;

constexpr std::int32_t kDoubles = 1'000'000;
constexpr std::int32_t kStrings = 100'000;
constexpr std::size_t kHeader = 6;

using Bytes = std::vector<std::uint8_t>;

template <class T>
void Append(Bytes& pBytes, const T* pData, std::size_t pCount) {
  const std::size_t at = pBytes.size();
  pBytes.resize(at + pCount * sizeof(T));
  std::memcpy(pBytes.data() + at, pData, pCount * sizeof(T));
}

Bytes DoubleRecords() {
  Bytes bytes(kHeader);
  for (std::int32_t i = 0; i < kDoubles; ++i) {
    const double value = i * 0.5;
    std::array<std::uint8_t, 9> record{4};
    std::memcpy(record.data() + 1, &value, sizeof value);
    Append(bytes, record.data(), record.size());
  }
  return bytes;
}

std::u16string ShortText(std::int32_t pIndex) {
  return u"Channel" + std::u16string(1, static_cast<char16_t>(u'a' + pIndex % 26));
}

Bytes StringRecords(const std::vector<std::u16string>& pTexts) {
  Bytes bytes(kHeader);
  for (const std::u16string& text : pTexts) {
    const auto count = static_cast<std::int32_t>(2 * text.size());
    bytes.push_back(3);
    Append(bytes, &count, 1);
    Append(bytes, text.data(), text.size());
  }
  return bytes;
}

std::vector<std::u16string> Texts() {
  std::vector<std::u16string> texts;
  for (std::int32_t i = 0; i < kStrings; ++i) texts.push_back(ShortText(i));
  return texts;
}

void AppendDoublesLimit(benchmark::State& pState) {
  for (auto _ : pState) benchmark::DoNotOptimize(DoubleRecords());
}
BENCHMARK(AppendDoublesLimit)->Name("AppendDoubles/limit")->Unit(benchmark::kMillisecond);

void AppendDoubles(benchmark::State& pState) {
  for (auto _ : pState) {
    CBuffer buffer;
    for (std::int32_t i = 0; i < kDoubles; ++i) buffer.AddDouble(i * 0.5);
    benchmark::DoNotOptimize(buffer.Size());
  }
}
BENCHMARK(AppendDoubles)->Name("AppendDoubles/CBuffer")->Unit(benchmark::kMillisecond);

void ReadDoublesLimit(benchmark::State& pState) {
  const Bytes bytes = DoubleRecords();
  for (auto _ : pState) {
    double sum = 0;
    for (std::size_t at = kHeader; at + 9 <= bytes.size() && bytes[at] == 4; at += 9) {
      double value = 0;
      std::memcpy(&value, bytes.data() + at + 1, sizeof value);
      sum += value;
    }
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(ReadDoublesLimit)->Name("ReadDoubles/limit")->Unit(benchmark::kMillisecond);

void ReadDoubles(benchmark::State& pState) {
  CBuffer buffer;
  for (std::int32_t i = 0; i < kDoubles; ++i) buffer.AddDouble(i * 0.5);
  for (auto _ : pState) {
    buffer.ResetPos();
    double sum = 0;
    for (std::int32_t i = 0; i < kDoubles; ++i) sum += buffer.NextDouble();
    benchmark::DoNotOptimize(sum);
  }
}
BENCHMARK(ReadDoubles)->Name("ReadDoubles/CBuffer")->Unit(benchmark::kMillisecond);

void AppendStringsLimit(benchmark::State& pState) {
  const auto texts = Texts();
  for (auto _ : pState) benchmark::DoNotOptimize(StringRecords(texts));
}
BENCHMARK(AppendStringsLimit)->Name("AppendStrings/limit")->Unit(benchmark::kMillisecond);

void AppendStrings(benchmark::State& pState) {
  const auto texts = Texts();
  for (auto _ : pState) {
    CBuffer buffer;
    for (const std::u16string& text : texts) buffer.AddString(text);
    benchmark::DoNotOptimize(buffer.Size());
  }
}
BENCHMARK(AppendStrings)->Name("AppendStrings/CBuffer")->Unit(benchmark::kMillisecond);

void ReadStringsLimit(benchmark::State& pState) {
  const Bytes bytes = StringRecords(Texts());
  for (auto _ : pState) {
    std::size_t characters = 0;
    for (std::size_t at = kHeader; at + 5 <= bytes.size() && bytes[at] == 3;) {
      std::int32_t count = 0;
      std::memcpy(&count, bytes.data() + at + 1, sizeof count);
      std::u16string text(static_cast<std::size_t>(count) / 2, u'\0');
      std::memcpy(text.data(), bytes.data() + at + 5, static_cast<std::size_t>(count));
      benchmark::DoNotOptimize(text);
      characters += text.size();
      at += 5 + static_cast<std::size_t>(count);
    }
    benchmark::DoNotOptimize(characters);
  }
}
BENCHMARK(ReadStringsLimit)->Name("ReadStrings/limit")->Unit(benchmark::kMillisecond);

void ReadStrings(benchmark::State& pState) {
  CBuffer buffer;
  for (const std::u16string& text : Texts()) buffer.AddString(text);
  for (auto _ : pState) {
    buffer.ResetPos();
    for (std::int32_t i = 0; i < kStrings; ++i) benchmark::DoNotOptimize(buffer.NextString());
  }
}
BENCHMARK(ReadStrings)->Name("ReadStrings/CBuffer")->Unit(benchmark::kMillisecond);

// The limit of the checksum is the plain loop: one table look-up a byte.
void CheckSumByteLoop(benchmark::State& pState) {
  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t i = 0; i < 256; ++i) {
    table[i] = i;
    for (int bit = 0; bit < 8; ++bit) table[i] = (table[i] >> 1) ^ (table[i] & 1 ? 0xEDB88320u : 0u);
  }
  const Bytes bytes = DoubleRecords();
  for (auto _ : pState) {
    std::uint32_t crc = 101192;
    for (const std::uint8_t byte : bytes) crc = (crc >> 8) ^ table[(crc ^ byte) & 0xFF];
    benchmark::DoNotOptimize(crc);
  }
  pState.SetBytesProcessed(static_cast<std::int64_t>(pState.iterations() * bytes.size()));
}
BENCHMARK(CheckSumByteLoop)->Name("CheckSum/limit")->Unit(benchmark::kMillisecond);

void CheckSum(benchmark::State& pState) {
  CBuffer buffer;
  for (std::int32_t i = 0; i < kDoubles; ++i) buffer.AddDouble(i * 0.5);
  for (auto _ : pState) benchmark::DoNotOptimize(buffer.CheckSum());
  pState.SetBytesProcessed(static_cast<std::int64_t>(pState.iterations()) * buffer.Size());
}
BENCHMARK(CheckSum)->Name("CheckSum/CBuffer")->Unit(benchmark::kMillisecond);

}  // namespace
