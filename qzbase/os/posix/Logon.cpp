#include "qzbase/os/Logon.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <string>

#include <security/pam_appl.h>
#include <unistd.h>

#include "qzbase/os/Utf8.h"

namespace qzbase::os {
namespace {

// PAM itself would take the rules of "other" for a service that it does not know; these refuse or allow what they like.
const char* ServiceName() {
  constexpr std::array kRules = {"/etc/pam.d/qzbase", "/usr/lib/pam.d/qzbase"};
  const bool hasOwn =
      std::any_of(kRules.begin(), kRules.end(), [](const char* pFile) { return access(pFile, F_OK) == 0; });
  return hasOwn ? "qzbase" : "login";
}

// Answers every question that hides what is typed with the password, and no other. PAM frees the answers.
int Answer(int pCount, const pam_message** pQuestions, pam_response** pAnswers, void* pPassword) {
  if (pCount <= 0) return PAM_CONV_ERR;
  const auto count = static_cast<std::size_t>(pCount);
  auto* answers = static_cast<pam_response*>(std::calloc(count, sizeof(pam_response)));
  if (answers == nullptr) return PAM_BUF_ERR;
  for (std::size_t i = 0; i < count; ++i)
    if (pQuestions[i]->msg_style == PAM_PROMPT_ECHO_OFF) answers[i].resp = strdup(static_cast<const char*>(pPassword));
  *pAnswers = answers;
  return PAM_SUCCESS;
}

}  // namespace

bool IsLogonValid(std::u16string_view pUserName, std::u16string_view pPassword) {
  // The system would read them as far as the zero.
  if (pUserName.find(u'\0') != pUserName.npos || pPassword.find(u'\0') != pPassword.npos) return false;
  std::string password = ToUtf8(pPassword);
  const pam_conv conversation{&Answer, password.data()};
  pam_handle_t* pam = nullptr;
  if (pam_start(ServiceName(), ToUtf8(pUserName).c_str(), &conversation, &pam) != PAM_SUCCESS) return false;
  int result = pam_authenticate(pam, PAM_SILENT);
  if (result == PAM_SUCCESS) result = pam_acct_mgmt(pam, PAM_SILENT);
  pam_end(pam, result);
  return result == PAM_SUCCESS;
}

}  // namespace qzbase::os
