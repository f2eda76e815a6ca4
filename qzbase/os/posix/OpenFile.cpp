#include "qzbase/os/OpenFile.h"

#include <cerrno>
#include <string>

#include <unistd.h>

#include "qzbase/os/Utf8.h"

namespace qzbase::os {

void WriteLine(std::int32_t pNumber, std::u16string_view pLine) {
  const std::string line = ToUtf8(pLine) + "\n";
  for (std::size_t done = 0; done < line.size();) {
    const ssize_t written = write(pNumber, line.data() + done, line.size() - done);
    if (written > 0)
      done += static_cast<std::size_t>(written);
    else if (written == 0 || errno != EINTR)
      return;
  }
}

}  // namespace qzbase::os
