#include "qzbase/runtime/AutomationError.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <stdexcept>
#include <utility>

#include "qzbase/os/ThreadSlot.h"
#include "qzbase/os/Utf8.h"

namespace qzbase::runtime {
namespace {

struct StandardText {
  std::int32_t number;
  std::u16string_view text;
};

// In ascending order of the numbers.
constexpr StandardText kStandardTexts[] = {
    {3, u"Return without GoSub"},
    {5, u"Invalid procedure call or argument"},
    {6, u"Overflow"},
    {7, u"Out of memory"},
    {9, u"Subscript out of range"},
    {10, u"This array is fixed or temporarily locked"},
    {11, u"Division by zero"},
    {13, u"Type mismatch"},
    {14, u"Out of string space"},
    {16, u"Expression too complex"},
    {17, u"Can't perform requested operation"},
    {18, u"User interrupt occurred"},
    {20, u"Resume without error"},
    {28, u"Out of stack space"},
    {35, u"Sub or Function not defined"},
    {47, u"Too many DLL application clients"},
    {48, u"Error in loading DLL"},
    {49, u"Bad DLL calling convention"},
    {51, u"Internal error"},
    {52, u"Bad file name or number"},
    {53, u"File not found"},
    {54, u"Bad file mode"},
    {55, u"File already open"},
    {57, u"Device I/O error"},
    {58, u"File already exists"},
    {59, u"Bad record length"},
    {61, u"Disk full"},
    {62, u"Input past end of file"},
    {63, u"Bad record number"},
    {67, u"Too many files"},
    {68, u"Device unavailable"},
    {70, u"Permission denied"},
    {71, u"Disk not ready"},
    {74, u"Can't rename with different drive"},
    {75, u"Path/File access error"},
    {76, u"Path not found"},
    {91, u"Object variable or With block variable not set"},
    {92, u"For loop not initialized"},
    {93, u"Invalid pattern string"},
    {94, u"Invalid use of Null"},
    {97, u"Can not call friend function on object which is not an instance of defining class"},
    {298, u"System DLL could not be loaded"},
    {320, u"Can't use character device names in specified file names"},
    {321, u"Invalid file format"},
    {322, u"Can't create necessary temporary file"},
    {325, u"Invalid format in resource file"},
    {327, u"Data value named not found"},
    {328, u"Illegal parameter; can't write arrays"},
    {335, u"Could not access system registry"},
    {336, u"Component not correctly registered"},
    {337, u"Component not found"},
    {338, u"Component did not run correctly"},
    {360, u"Object already loaded"},
    {361, u"Can't load or unload this object"},
    {363, u"Specified component not found"},
    {364, u"Object was unloaded"},
    {365, u"Unable to unload within this context"},
    {368, u"The specified file is out of date. This program requires a later version"},
    {371, u"The specified object can't be used as an owner form for Show"},
    {380, u"Invalid property value"},
    {381, u"Invalid property-array index"},
    {382, u"Property Set can't be executed at run time"},
    {383, u"Property Set can't be used with a read-only property"},
    {385, u"Need property-array index"},
    {387, u"Property Set not permitted"},
    {393, u"Property Get can't be executed at run time"},
    {394, u"Property Get can't be executed on write-only property"},
    {400, u"Form already displayed; can't show modally"},
    {402, u"Code must close topmost modal form first"},
    {419, u"Permission to use object denied"},
    {422, u"Property not found"},
    {423, u"Property or method not found"},
    {424, u"Object required"},
    {425, u"Invalid object use"},
    {429, u"ActiveX component can't create object"},
    {430, u"Class does not support Automation or does not support expected interface"},
    {432, u"File name or class name not found during Automation operation"},
    {438, u"Object doesn't support this property or method"},
    {440, u"Automation error"},
    {442, u"Connection to type library or object library for remote process has been lost"},
    {443, u"Automation object does not have a default value"},
    {445, u"Object doesn't support this action"},
    {446, u"Object doesn't support named arguments"},
    {447, u"Object doesn't support current locale setting"},
    {448, u"Named argument not found"},
    {449, u"Argument not optional"},
    {450, u"Wrong number of arguments or invalid property assignment"},
    {451, u"Property let procedure not defined and property get procedure did not return an object"},
    {452, u"Invalid ordinal"},
    {453, u"Specified DLL function not found"},
    {454, u"Code resource not found"},
    {455, u"Code resource lock error"},
    {457, u"This key is already associated with an element of this collection"},
    {458, u"Variable uses an Automation type not supported"},
    {459, u"Object or class does not support the set of events"},
    {460, u"Invalid Clipboard format"},
    {461, u"Method or data member not found"},
    {462, u"The remote server machine does not exist or is unavailable"},
    {463, u"Class not registered on local machine"},
    {480, u"Can't create AutoRedraw image"},
    {481, u"Invalid picture"},
    {482, u"Printer error"},
    {483, u"Printer driver does not support specified property"},
    {484, u"Problem getting printer information from the system. Make sure the printer is set up correctly"},
    {485, u"Invalid picture type"},
    {486, u"Can't print form image to this type of printer"},
    {520, u"Can't empty Clipboard"},
    {521, u"Can't open Clipboard"},
    {735, u"Can't save file to TEMP directory"},
    {744, u"Search text not found"},
    {746, u"Replacements too long"},
};

constexpr std::u16string_view kGeneralText = u"Application-defined or object-defined error";

using SharedRecord = std::shared_ptr<const ErrorRecord>;

// Null while there is no error. Shared, so that keeping it costs next to nothing.
SharedRecord& ThreadRecord() {
  static os::PerThread<SharedRecord> record;
  return *record;
}

std::int32_t NumberOf(RuntimeError pError) noexcept {
  return static_cast<std::int32_t>(pError);
}

}  // namespace

AutomationError::AutomationError(ErrorRecord pRecord)
    : record_(std::move(pRecord)),
      what_("error " + std::to_string(record_.number) + ": " + os::ToUtf8(record_.description)) {}

void Raise(RuntimeError pError) {
  const std::int32_t number = NumberOf(pError);
  Raise({number, {}, std::u16string(StandardErrorText(number)), true});
}

void Raise(ErrorRecord pRecord) {
  SetLastError(pRecord);
  throw AutomationError(std::move(pRecord));
}

const ErrorRecord& LastError() {
  static const ErrorRecord none;
  const SharedRecord& record = ThreadRecord();
  return record ? *record : none;
}

void SetLastError(ErrorRecord pRecord) {
  ThreadRecord() = std::make_shared<const ErrorRecord>(std::move(pRecord));
}

void ClearLastError() {
  ThreadRecord() = nullptr;
}

LastErrorKept::LastErrorKept() : record_(ThreadRecord()) {}

LastErrorKept::~LastErrorKept() {
  ThreadRecord() = std::move(record_);
}

std::int32_t ErrorNumberOf(const std::exception& pError) noexcept {
  if (const auto* error = dynamic_cast<const AutomationError*>(&pError); error && error->Number() != 0)
    return error->Number();
  const bool isOfMemory =
      dynamic_cast<const std::bad_alloc*>(&pError) || dynamic_cast<const std::length_error*>(&pError);
  return NumberOf(isOfMemory ? RuntimeError::OutOfMemory : RuntimeError::InternalError);
}

std::u16string_view StandardErrorText(std::int32_t pNumber) {
  const auto found =
      std::lower_bound(std::begin(kStandardTexts), std::end(kStandardTexts), pNumber,
                       [](const StandardText& pRow, std::int32_t pSought) { return pRow.number < pSought; });
  return found != std::end(kStandardTexts) && found->number == pNumber ? found->text : kGeneralText;
}

}  // namespace qzbase::runtime
