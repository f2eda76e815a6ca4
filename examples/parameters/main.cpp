// The usual way of a value through the library: described, typed in by a user, checked, refused or accepted, converted,
// saved with its descriptor, and read back.
//
//   parameters OUTPUT.qzb
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>

#include "examples/parameters/Sheet.h"
#include "examples/support/Files.h"
#include "qzbase/core/GCError.h"
#include "qzbase/desc/CTypedInfo.h"
#include "qzbase/os/LocaleRules.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Locale.h"
#include "qzbase/text/GCConvert.h"
#include "qzbase/text/GCStrings.h"

using namespace qzbase;

namespace {

void Print(const char* pFormat, std::u16string_view pFirst, std::u16string_view pSecond = {},
           std::u16string_view pThird = {}) {
  std::printf(pFormat, os::ToUtf8(pFirst).c_str(), os::ToUtf8(pSecond).c_str(), os::ToUtf8(pThird).c_str());
}

// What a user may enter: the range in words, or the words of the format's list.
std::u16string Hint(const TEntryDesc& pDesc) {
  return GCStrings::HumanReadable(pDesc.Range().empty() ? pDesc.OutFormat() : pDesc.Range());
}

void ShowSheet(const CEntryDescs& pSheet) {
  std::printf("The parameter sheet:\n");
  for (std::int32_t i = 1; i <= pSheet.Size(); ++i) {
    const Ref<TEntryDesc> desc = pSheet.DescRef(i);
    Print("  %-26s %-8s %s\n", desc->Name() + GCStrings::FormatUnit(desc->Unit()),
          GCConvert::VarTypeToString(desc->VarType()), Hint(*desc));
  }
}

// Checks one text as a dialog does when the user leaves the field, and keeps the value where it is accepted.
void Enter(CTypedInfo& pValues, const TypedText& pTyped) {
  const TEntryDesc& desc = *pValues.DescRef(pValues.Index(pTyped.id));
  const std::u16string typed = u"\"" + std::u16string(pTyped.text) + u"\"";
  try {
    GCConvert::CheckValueED(pTyped.text, desc, true, false);
  } catch (const runtime::AutomationError& error) {
    Print("  %-18s %-22s %s", desc.Name(), typed, GCError::ErrorMessage(error.Number()));
    Print(desc.Range().empty() ? "\n" : "; %s\n", Hint(desc));
    return;
  }
  pValues.SetValue(pTyped.id, GCConvert::StringToValueVD(pTyped.text, *desc.VarDesc()));
  Print("  %-18s %-22s accepted\n", desc.Name(), typed);
}

void ShowValues(const CTypedInfo& pValues) {
  for (std::int32_t i = 1; i <= pValues.NrInfos(); ++i) {
    const Ref<TEntryDesc> desc = pValues.DescRef(i);
    Print("  %-18s %s %s\n", desc->Name(), GCConvert::ValueToStringVD(pValues.Value(i), *desc->VarDesc()),
          desc->Unit());
  }
}

void Run(const std::string& pPath) {
  const runtime::ScopedLocale german(os::NamedLocaleRules("de-DE"));
  CTypedInfo values;
  values.SetupFrom(*ChamberSheet());
  ShowSheet(*values.DescsRef());

  std::printf("\nWhat a user types, whose decimal delimiter is a comma:\n");
  for (const TypedText& typed : TypedTexts()) Enter(values, typed);

  CBuffer buffer;
  values.SaveToBuffer(&buffer);
  SaveFile(pPath, buffer);
  const Ref<CBuffer> loadedBuffer = LoadFile(pPath);
  CTypedInfo loaded;
  loaded.LoadFromBuffer(loadedBuffer.get());
  std::printf("\nSaved %d bytes into %s and read back:\n", buffer.Size(), pPath.c_str());
  ShowValues(loaded);
  if (!loaded.IsEqual(values)) throw std::runtime_error("does not read back as it was written");
}

}  // namespace

int main(int pCount, char** pArguments) {
  if (pCount != 2) {
    std::fprintf(stderr, "usage: parameters OUTPUT.qzb\n");
    return 2;
  }
  try {
    Run(pArguments[1]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "parameters: %s: %s\n", pArguments[1], error.what());
    return 1;
  }
  return 0;
}
