// Draws the series of a file of comma-separated values as an SVG picture, by a graph layout.
//
//   plot FILE.csv OUTPUT.svg [OPTION...]     the first column is X: numbers or dates
//     --title=TEXT  --caption=TEXT     of the graph and its Y axis
//     --log  --reverse                 the Y axis
//   plot --samples OUTPUT.svg                what the codes of a layout mean here
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "examples/plot/Plot.h"
#include "examples/plot/Samples.h"
#include "examples/support/Files.h"
#include "examples/support/TableFromCsv.h"
#include "qzbase/os/Utf8.h"

using namespace qzbase;

namespace {

constexpr double kWidth = 900;
constexpr double kHeight = 520;

// The unit of all columns behind the first, empty where they differ.
std::u16string CommonUnit(const CTable& pTable) {
  constexpr std::int32_t kFirst = 2;
  if (pTable.NrCols() < kFirst) return {};
  const std::u16string& unit = pTable.ColDescRef(kFirst)->Unit();
  for (std::int32_t column = kFirst + 1; column <= pTable.NrCols(); ++column)
    if (pTable.ColDescRef(column)->Unit() != unit) return {};
  return unit;
}

// The layout of a table without options: every choice left to the host, the grid shown.
Ref<CLayoutGraph> LayoutOf(const CTable& pTable) {
  auto layout = New<CLayoutGraph>();
  layout->LetTitle(pTable.ID());
  for (const GraphAxis axis : {XAxis, YAxis}) {
    layout->LetAutoMin(axis, true);
    layout->LetAutoMax(axis, true);
    layout->LetShowGrid(axis, true);
  }
  if (pTable.NrCols() == 0) return layout;
  layout->LetAxisType(XAxis, pTable.ColDescRef(1)->VarType());
  layout->LetAxisCaption(XAxis, pTable.ColDescRef(1)->Name());
  layout->LetAxisUnit(XAxis, pTable.ColDescRef(1)->Unit());
  layout->LetAxisUnit(YAxis, CommonUnit(pTable));
  layout->LetNrCurveStyles(pTable.NrCols() - 1);
  return layout;
}

void Apply(CLayoutGraph& pLayout, const std::string& pOption) {
  const std::size_t equals = pOption.find('=');
  const std::string_view name = std::string_view(pOption).substr(0, equals);
  const std::u16string text = equals == std::string::npos ? u"" : os::FromUtf8(pOption.substr(equals + 1));
  if (name == "--title")
    pLayout.LetTitle(text);
  else if (name == "--caption")
    pLayout.LetAxisCaption(YAxis, text);
  else if (name == "--log")
    pLayout.LetAxisIsLog(YAxis, true);
  else if (name == "--reverse")
    pLayout.LetAxisIsReversed(YAxis, true);
  else
    throw std::runtime_error("is no option");
}

// What hosts do: layout and table travel in one buffer.
void SaveAndLoad(Ref<CLayoutGraph>& pLayout, Ref<CTable>& pTable) {
  CBuffer buffer;
  pLayout->SaveToBuffer(&buffer);
  pTable->SaveToBuffer(&buffer, true);
  auto layout = New<CLayoutGraph>();
  auto table = New<CTable>();
  layout->LoadFromBuffer(&buffer);
  table->LoadFromBuffer(&buffer, true);
  if (!layout->IsEqual(*pLayout) || !table->IsEqual(*pTable))
    throw std::runtime_error("does not read back as it was saved");
  std::printf("Layout and %d rows of %d columns saved into %d bytes and read back.\n", table->NrRows(), table->NrCols(),
              buffer.Size());
  pLayout = layout;
  pTable = table;
}

void WritePicture(const std::string& pPath, const std::string& pPicture) {
  std::ofstream file(pPath, std::ios::binary);
  file << pPicture;
  if (!file.flush()) throw std::runtime_error("cannot be written");
  std::printf("Drawn into %s.\n", std::filesystem::absolute(pPath).string().c_str());
}

void Run(const std::vector<std::string>& pArguments, std::string& pAtWork) {
  pAtWork = pArguments[1];
  if (pArguments[0] == "--samples") return WritePicture(pArguments[1], plot::SamplesSvg());
  pAtWork = pArguments[0];
  const std::u16string name = os::FromUtf8(std::filesystem::path(pArguments[0]).stem().string());
  Ref<CTable> table = TableFromCsv(ParseCsv(ReadFile(pArguments[0])), name);
  Ref<CLayoutGraph> layout = LayoutOf(*table);
  for (std::size_t i = 2; i < pArguments.size(); ++i) Apply(*layout, pAtWork = pArguments[i]);
  SaveAndLoad(layout, table);
  pAtWork = pArguments[1];
  WritePicture(pArguments[1], plot::PlotSvg(*layout, *table, kWidth, kHeight));
}

}  // namespace

int main(int pCount, char** pArguments) {
  if (pCount < 3) {
    std::fprintf(stderr, "usage: plot FILE.csv OUTPUT.svg [OPTION...] | plot --samples OUTPUT.svg\n");
    return 2;
  }
  std::string atWork;
  try {
    Run({pArguments + 1, pArguments + pCount}, atWork);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "plot: %s: %s\n", atWork.c_str(), error.what());
    return 1;
  }
  return 0;
}
