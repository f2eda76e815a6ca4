#include "qzbase/os/OpenFile.h"

#include <string>

#include <windows.h>

#include "qzbase/os/Utf8.h"

namespace qzbase::os {

void WriteLine(std::int32_t pNumber, std::u16string_view pLine) {
  const std::string line = ToUtf8(pLine) + "\r\n";
  DWORD written = 0;
  WriteFile(LongToHandle(pNumber), line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
}

}  // namespace qzbase::os
