#include "qzbase/os/OpenFile.h"

#include <cerrno>
#include <csignal>
#include <ctime>
#include <string>

#include <unistd.h>

#include "qzbase/os/Utf8.h"

namespace qzbase::os {
namespace {

// Keeps the system from ending the program for a line that nobody reads at the other end of a pipe. A signal that was
// waiting before is left waiting.
class WithoutPipeSignal {
 public:
  WithoutPipeSignal() noexcept {
    sigset_t waiting;
    sigpending(&waiting);
    wasWaiting_ = sigismember(&waiting, SIGPIPE) == 1;
    sigemptyset(&pipe_);
    sigaddset(&pipe_, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &pipe_, &before_);
  }
  ~WithoutPipeSignal() {
    constexpr timespec kNow{};
    while (!wasWaiting_ && sigtimedwait(&pipe_, nullptr, &kNow) < 0 && errno == EINTR) continue;
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
  }
  WithoutPipeSignal(const WithoutPipeSignal&) = delete;
  WithoutPipeSignal& operator=(const WithoutPipeSignal&) = delete;

 private:
  sigset_t pipe_{};
  sigset_t before_{};
  bool wasWaiting_ = false;
};

}  // namespace

void WriteLine(std::int32_t pNumber, std::u16string_view pLine) {
  const std::string line = ToUtf8(pLine) + "\n";
  const WithoutPipeSignal withoutSignal;
  for (std::size_t done = 0; done < line.size();) {
    const ssize_t written = write(pNumber, line.data() + done, line.size() - done);
    if (written > 0)
      done += static_cast<std::size_t>(written);
    else if (written == 0 || errno != EINTR)
      return;
  }
}

}  // namespace qzbase::os
