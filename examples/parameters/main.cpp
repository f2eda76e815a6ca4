// The usual way of a value through the library: described, typed in by a user, checked, refused or accepted, converted,
// kept in the registry store with its descriptor, and back again after a restart.
//
//   parameters enter       a user fills in the sheet
//   parameters restart     another process finds the values; the user now speaks German
#include <cstdio>
#include <exception>
#include <stdexcept>
#include <string>
#include <string_view>

#include "examples/parameters/German.h"
#include "examples/parameters/Sheet.h"
#include "qzbase/core/GCError.h"
#include "qzbase/desc/CTypedInfo.h"
#include "qzbase/locale/GCResource.h"
#include "qzbase/os/LocaleRules.h"
#include "qzbase/os/Utf8.h"
#include "qzbase/persist/GCRegistry.h"
#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Locale.h"
#include "qzbase/text/GCConvert.h"
#include "qzbase/text/GCStrings.h"

using namespace qzbase;

namespace {

constexpr std::u16string_view kSection = u"Software\\QZBase\\Examples";
constexpr std::u16string_view kKey = u"ClimateChamber";

void Print(const char* pFormat, std::u16string_view pFirst, std::u16string_view pSecond = {},
           std::u16string_view pThird = {}) {
  std::printf(pFormat, os::ToUtf8(pFirst).c_str(), os::ToUtf8(pSecond).c_str(), os::ToUtf8(pThird).c_str());
}

// What a user may enter: the range in words, or how a date is written.
std::u16string Hint(const TEntryDesc& pDesc) {
  return pDesc.VarType() == EVTDate ? GCResource::LocalizedString(u"as") + u" " + pDesc.OutFormat()
                                    : GCStrings::HumanReadable(pDesc.Range());
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
    Print("  %-18s %-22s %s; ", desc.Name(), typed, GCError::ErrorMessage(error.Number()));
    Print("%s\n", Hint(desc));
    return;
  }
  pValues.SetValue(pTyped.id, GCConvert::StringToValueVD(pTyped.text, *desc.VarDesc()));
  Print("  %-18s %-22s %s\n", desc.Name(), typed, GCResource::LocalizedString(u"accepted"));
}

void ShowValues(const CTypedInfo& pValues) {
  for (std::int32_t i = 1; i <= pValues.NrInfos(); ++i) {
    const Ref<TEntryDesc> desc = pValues.DescRef(i);
    Print("  %-18s %s %s\n", desc->Name(), GCConvert::ValueToStringVD(pValues.Value(i), *desc->VarDesc()),
          desc->Unit());
  }
}

void TypeIn(CTypedInfo& pValues) {
  for (const TypedText& typed : TypedTexts()) Enter(pValues, typed);
}

void FillIn() {
  CTypedInfo values;
  values.SetupFrom(*ChamberSheet());
  ShowSheet(*values.DescsRef());
  std::printf("\nWhat a user types, whose decimal delimiter is a comma:\n");
  TypeIn(values);

  CBuffer buffer;
  values.SaveToBuffer(&buffer);
  GCRegistry::REGSaveBuffer(HKEY_CURRENT_USER, kSection, kKey, buffer);
  std::printf("\nKept %d bytes in the registry store.\n", buffer.Size());
}

// The restarted program begins with its own descriptors, which may be newer ones, and takes the values over.
void Restart() {
  const Ref<CBuffer> kept = GCRegistry::REGGetBuffer(HKEY_CURRENT_USER, kSection, kKey);
  CTypedInfo loaded;
  loaded.LoadFromBuffer(kept.get());
  if (loaded.NrInfos() == 0) throw std::runtime_error("nothing is kept in the registry store yet");
  CTypedInfo values;
  values.SetupFrom(*ChamberSheet());
  values.UpdateFrom(loaded);
  std::printf("What the registry store has kept:\n");
  ShowValues(values);

  SpeakGerman();
  std::printf("\nThe same texts, typed by a user who speaks German:\n");
  TypeIn(values);
}

}  // namespace

int main(int pCount, char** pArguments) {
  const std::string_view step = pCount == 2 ? pArguments[1] : "";
  if (step != "enter" && step != "restart") {
    std::fprintf(stderr, "usage: parameters enter | restart\n");
    return 2;
  }
  try {
    const runtime::ScopedLocale german(os::NamedLocaleRules("de-DE"));
    step == "enter" ? FillIn() : Restart();
  } catch (const std::exception& error) {
    std::fprintf(stderr, "parameters: %s\n", error.what());
    return 1;
  }
  return 0;
}
