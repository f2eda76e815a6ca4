// Tables of five typed columns: saving, loading and sorting, over three sizes to show that the time grows with the
// rows; and looking up a column by its ID.
#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <functional>
#include <numeric>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <benchmark/benchmark.h>

#include "qzbase/data/CTable.h"

namespace {

using namespace qzbase;

constexpr QZVarType kTypes[] = {EVTLong, EVTDouble, EVTString, EVTDate, EVTBoolean};

// The same rows as a program would keep them that knows its columns.
struct PlainRows {
  std::vector<std::int32_t> longs;
  std::vector<double> doubles;
  std::vector<std::u16string> texts;
  std::vector<double> dates;
  std::vector<std::uint8_t> booleans;
};

PlainRows MakeRows(std::int64_t pCount) {
  std::mt19937_64 random(5);
  std::normal_distribution<double> values(0, 1000);
  std::uniform_int_distribution<int> letters(u'a', u'z');
  std::uniform_int_distribution<std::size_t> lengths(3, 12);
  PlainRows rows;
  for (std::int64_t i = 0; i < pCount; ++i) {
    std::u16string text(lengths(random), u' ');
    for (char16_t& letter : text) letter = static_cast<char16_t>(letters(random));
    rows.longs.push_back(static_cast<std::int32_t>(i));
    rows.doubles.push_back(values(random));
    rows.texts.push_back(std::move(text));
    rows.dates.push_back(40000 + static_cast<double>(i) / 24);
    rows.booleans.push_back(i % 3 == 0 ? 0xFF : 0);
  }
  return rows;
}

void FillData(CEntryData& pData, const PlainRows& pRows) {
  for (const QZVarType type : kTypes) pData.AddCol(type);
  for (std::size_t i = 0; i < pRows.longs.size(); ++i) {
    pData.AddRow();
    const std::int32_t row = pData.NrRows();
    pData.LetValue(1, row, pRows.longs[i]);
    pData.LetValue(2, row, pRows.doubles[i]);
    pData.LetValue(3, row, pRows.texts[i]);
    pData.LetValue(4, row, runtime::Date{pRows.dates[i]});
    pData.LetValue(5, row, pRows.booleans[i] != 0);
  }
}

// ---- Filling. The limit appends to plain columns.

void FillLimit(benchmark::State& pState) {
  const PlainRows rows = MakeRows(pState.range(0));
  for (auto _ : pState) {
    PlainRows copy;
    for (std::size_t i = 0; i < rows.longs.size(); ++i) {
      copy.longs.push_back(rows.longs[i]);
      copy.doubles.push_back(rows.doubles[i]);
      copy.texts.push_back(rows.texts[i]);
      copy.dates.push_back(rows.dates[i]);
      copy.booleans.push_back(rows.booleans[i]);
    }
    benchmark::DoNotOptimize(copy.longs.data());
  }
}

void Fill(benchmark::State& pState) {
  const PlainRows rows = MakeRows(pState.range(0));
  for (auto _ : pState) {
    CEntryData data;
    FillData(data, rows);
    benchmark::DoNotOptimize(data.NrRows());
  }
}

// ---- Saving and loading. The limit writes the same records into memory that doubles, and reads them.

using Bytes = std::vector<std::uint8_t>;

class PlainWriter {
 public:
  template <class T>
  void Append(std::uint8_t pMarker, T pValue) {
    MakeRoom(1 + sizeof(T));
    bytes_[at_] = pMarker;
    std::memcpy(bytes_.data() + at_ + 1, &pValue, sizeof(T));
    at_ += 1 + sizeof(T);
  }
  template <class Character>
  void AppendText(std::uint8_t pMarker, std::basic_string_view<Character> pText) {
    const std::size_t size = pText.size() * sizeof(Character);
    Append(pMarker, static_cast<std::int32_t>(size));
    MakeRoom(size);
    std::memcpy(bytes_.data() + at_, pText.data(), size);
    at_ += size;
  }
  void AppendHeader() {
    MakeRoom(6);
    for (const std::uint8_t byte : std::to_array<std::uint8_t>({0x03, 0x26, 0xA6, 0x15, 0xAB, 0x01}))
      bytes_[at_++] = byte;
  }
  void AppendTag(std::string_view pTag) { AppendText(1, pTag); }

  template <class Column, class AppendOne>
  void AppendColumn(QZVarType pType, const Column& pColumn, AppendOne pAppend) {
    Append(5, std::int32_t{pType});
    AppendTag("VE#1");
    Append(5, static_cast<std::int32_t>(pColumn.size()));
    for (const auto& value : pColumn) pAppend(value);
    AppendTag("\\VE");
  }

  Bytes Take() {
    bytes_.resize(at_);
    return std::move(bytes_);
  }

 private:
  void MakeRoom(std::size_t pCount) {
    if (at_ + pCount > bytes_.size()) bytes_.resize(2 * (at_ + pCount));
  }

  Bytes bytes_;
  std::size_t at_ = 0;
};

Bytes SavePlain(const PlainRows& pRows) {
  PlainWriter writer;
  writer.AppendHeader();
  writer.AppendTag("EntryData#1");
  writer.Append(5, std::int32_t{5});
  writer.Append(5, static_cast<std::int32_t>(pRows.longs.size()));
  writer.AppendColumn(EVTLong, pRows.longs, [&](std::int32_t value) { writer.Append(5, value); });
  writer.AppendColumn(EVTDouble, pRows.doubles, [&](double value) { writer.Append(4, value); });
  writer.AppendColumn(EVTString, pRows.texts, [&](std::u16string_view value) { writer.AppendText(3, value); });
  writer.AppendColumn(EVTDate, pRows.dates, [&](double value) { writer.Append(7, value); });
  writer.AppendColumn(EVTBoolean, pRows.booleans, [&](std::uint8_t value) { writer.Append(6, value); });
  writer.AppendTag("\\EntryData");
  return writer.Take();
}

class PlainReader {
 public:
  explicit PlainReader(const Bytes& pBytes) : bytes_(pBytes) {}

  template <class T>
  T Next(std::uint8_t pMarker) {
    T value{};
    if (bytes_.size() - at_ <= sizeof(T) || bytes_[at_] != pMarker) return value;
    std::memcpy(&value, bytes_.data() + at_ + 1, sizeof(T));
    at_ += 1 + sizeof(T);
    return value;
  }
  std::u16string NextText() {
    const auto count = static_cast<std::size_t>(Next<std::int32_t>(3));
    std::u16string text(count / 2, u'\0');
    std::memcpy(text.data(), bytes_.data() + at_, count);
    at_ += count;
    return text;
  }
  void SkipTag() { at_ += static_cast<std::size_t>(Next<std::int32_t>(1)); }

  template <class Column, class NextOne>
  void ReadColumn(Column& pColumn, NextOne pNext) {
    Next<std::int32_t>(5);
    SkipTag();
    pColumn.resize(static_cast<std::size_t>(Next<std::int32_t>(5)));
    for (auto& value : pColumn) value = pNext();
    SkipTag();
  }

 private:
  const Bytes& bytes_;
  std::size_t at_ = 6;
};

PlainRows LoadPlain(const Bytes& pBytes) {
  PlainReader reader(pBytes);
  reader.SkipTag();
  reader.Next<std::int32_t>(5);
  reader.Next<std::int32_t>(5);
  PlainRows rows;
  reader.ReadColumn(rows.longs, [&] { return reader.Next<std::int32_t>(5); });
  reader.ReadColumn(rows.doubles, [&] { return reader.Next<double>(4); });
  reader.ReadColumn(rows.texts, [&] { return reader.NextText(); });
  reader.ReadColumn(rows.dates, [&] { return reader.Next<double>(7); });
  reader.ReadColumn(rows.booleans, [&] { return reader.Next<std::uint8_t>(6); });
  return rows;
}

void SaveLimit(benchmark::State& pState) {
  const PlainRows rows = MakeRows(pState.range(0));
  for (auto _ : pState) benchmark::DoNotOptimize(SavePlain(rows));
}

void Save(benchmark::State& pState) {
  const PlainRows rows = MakeRows(pState.range(0));
  CEntryData data;
  FillData(data, rows);
  CBuffer buffer;
  data.SaveToBuffer(&buffer);
  Bytes bytes = SavePlain(rows);
  bytes.push_back(0);
  if (buffer.ByteArray().Elements() != bytes) pState.SkipWithError("not the same bytes");
  for (auto _ : pState) {
    CBuffer fresh;
    data.SaveToBuffer(&fresh);
    benchmark::DoNotOptimize(fresh.Size());
  }
}

void LoadLimit(benchmark::State& pState) {
  const Bytes bytes = SavePlain(MakeRows(pState.range(0)));
  for (auto _ : pState) benchmark::DoNotOptimize(LoadPlain(bytes).longs.data());
}

void Load(benchmark::State& pState) {
  CEntryData data;
  FillData(data, MakeRows(pState.range(0)));
  CBuffer buffer;
  data.SaveToBuffer(&buffer);
  for (auto _ : pState) {
    CEntryData loaded;
    loaded.LoadFromBuffer(&buffer);
    benchmark::DoNotOptimize(loaded.NrRows());
  }
}

// ---- Sorting. The limit sorts indices by a column and moves the rows of the plain columns by them.

template <class T>
void MoveRows(std::vector<T>& pColumn, const std::vector<std::int32_t>& pOrder) {
  std::vector<T> moved;
  moved.reserve(pColumn.size());
  for (const std::int32_t row : pOrder) moved.push_back(std::move(pColumn[static_cast<std::size_t>(row)]));
  pColumn = std::move(moved);
}

template <class Key>
void SortLimit(benchmark::State& pState, std::vector<Key> PlainRows::*pKey) {
  const PlainRows rows = MakeRows(pState.range(0));
  for (auto _ : pState) {
    pState.PauseTiming();
    PlainRows sorted = rows;
    pState.ResumeTiming();
    std::vector<std::int32_t> order((sorted.*pKey).size());
    std::iota(order.begin(), order.end(), 0);
    const Key* keys = (sorted.*pKey).data();
    std::stable_sort(order.begin(), order.end(), [keys](std::int32_t i, std::int32_t j) { return keys[i] < keys[j]; });
    MoveRows(sorted.longs, order);
    MoveRows(sorted.doubles, order);
    MoveRows(sorted.texts, order);
    MoveRows(sorted.dates, order);
    MoveRows(sorted.booleans, order);
    benchmark::DoNotOptimize(sorted.longs.data());
  }
}

void Sort(benchmark::State& pState, std::int32_t pCol) {
  CEntryData data;
  FillData(data, MakeRows(pState.range(0)));
  for (auto _ : pState) {
    pState.PauseTiming();
    const auto sorted = data.GetCopy();
    pState.ResumeTiming();
    sorted->Sort(pCol, true);
    benchmark::DoNotOptimize(sorted->NrRows());
  }
}

// ---- The column of an ID, the last of a thousand. The limit folds the letters A to Z.

std::u16string ColumnID(int pIndex) {
  const std::string digits = std::to_string(1000 + pIndex);
  return u"Channel" + std::u16string(digits.begin(), digits.end());
}

void IndexLimit(benchmark::State& pState) {
  std::vector<std::u16string> ids;
  for (int i = 0; i < 1000; ++i) ids.push_back(ColumnID(i));
  std::u16string sought = u"CHANNEL1999";
  const auto fold = [](char16_t c) { return c >= u'A' && c <= u'Z' ? static_cast<char16_t>(c + 32) : c; };
  for (auto _ : pState) {
    benchmark::DoNotOptimize(sought.data());
    benchmark::DoNotOptimize(std::find_if(ids.begin(), ids.end(), [&](const std::u16string& id) {
      return std::equal(id.begin(), id.end(), sought.begin(), sought.end(),
                        [&](char16_t l, char16_t r) { return fold(l) == fold(r); });
    }));
  }
}

void Index(benchmark::State& pState) {
  CTable table;
  table.LetNrCols(1000);
  for (int i = 0; i < 1000; ++i) table.ColDescRef(i + 1)->LetID(ColumnID(i));
  for (auto _ : pState) benchmark::DoNotOptimize(table.ColIndex(u"CHANNEL1999"));
}

void Register(const std::string& pSubject, std::int64_t pRows, auto pLimit, auto pLibrary) {
  const std::string subject = pSubject + std::to_string(pRows);
  for (const auto& [name, function] :
       {std::pair<std::string, std::function<void(benchmark::State&)>>{"/limit", pLimit}, {"/CEntryData", pLibrary}})
    benchmark::RegisterBenchmark((subject + name).c_str(), function)->Arg(pRows)->Unit(benchmark::kMillisecond);
}

const bool kRegistered = [] {
  for (const std::int64_t rows : {5'000, 50'000, 100'000, 500'000}) {
    Register("TableFill", rows, FillLimit, Fill);
    Register("TableSave", rows, SaveLimit, Save);
    Register("TableLoad", rows, LoadLimit, Load);
    Register(
        "TableSortDouble", rows, [](auto& state) { SortLimit(state, &PlainRows::doubles); },
        [](auto& state) { Sort(state, 2); });
    Register(
        "TableSortText", rows, [](auto& state) { SortLimit(state, &PlainRows::texts); },
        [](auto& state) { Sort(state, 3); });
  }
  return true;
}();

BENCHMARK(IndexLimit)->Name("TableIndex/limit")->Unit(benchmark::kMicrosecond);
BENCHMARK(Index)->Name("TableIndex/CTable")->Unit(benchmark::kMicrosecond);

}  // namespace
