#include "examples/parameters/Sheet.h"

#include "qzbase/platform/GCBase.h"

using namespace qzbase;

Ref<CEntryDescs> ChamberSheet() {
  auto sheet = New<CEntryDescs>();
  const auto add = [&](const Ref<TEntryDesc>& pDesc, std::u16string_view pDescription) {
    pDesc->LetDescription(pDescription);
    sheet->AddDesc(*pDesc);
  };
  add(GCBase::NewEntryDesc(u"Temperature", EVTDouble, u"Temperature", u"degC", ECTEdit, u"0.0", u"[-40;120]", u"0.5"),
      u"The air temperature that the chamber holds");
  add(GCBase::NewEntryDesc(u"Cycles", EVTLong, u"Number of cycles", u"", ECTEdit, u"", u"[1;1000]", u"1"),
      u"How often the programme runs");
  add(GCBase::NewEntryDesc(u"Fan", EVTEnum, u"Fan", u"", ECTCombo, u"{Off;Low;High}", u"{Off;Low;High}"),
      u"The speed of the fan");
  add(GCBase::NewEntryDesc(u"Start", EVTDate, u"First day", u"", ECTEdit, u"dd.mm.yyyy"), u"When the programme begins");
  add(GCBase::NewEntryDesc(u"Alarm", EVTBoolean, u"Alarm", u"", ECTOption, u"{Yes;No}"),
      u"Whether leaving the tolerance sounds the horn");
  add(GCBase::NewEntryDesc(u"Report", EVTString, u"Report to", u"", ECTCombo, u"", u"{Printer;File;'nobody'}"),
      u"Where the protocol goes");
  add(GCBase::NewEntryDesc(u"Ramp", EVTString, u"Heating ramp", u"K/min", ECTEdit, u"", u"*"),
      u"A number, or a word that the controller knows");
  return sheet;
}

std::vector<TypedText> TypedTexts() {
  return {
      {u"Temperature", u"21.5"},  // a point groups thousands here
      {u"Temperature", u"150"},   // above the range
      {u"Temperature", u"21,3"},  // not on the grid of half degrees
      {u"Temperature", u"21,5"},
      {u"Cycles", u"12,5"},  // no whole number
      {u"Cycles", u"0"},
      {u"Cycles", u"25"},
      {u"Fan", u"Medium"},
      {u"Fan", u"Low"},
      {u"Start", u"31.11.2031"},  // November has thirty days
      {u"Start", u"28.11.2031"},
      {u"Alarm", u"perhaps"},
      {u"Alarm", u"Yes"},
      {u"Report", u"Fax"},
      {u"Report", u"nobody"},
      {u"Ramp", u""},
      {u"Ramp", u"as fast as it can"},
  };
}
