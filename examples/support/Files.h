// Files as the examples read and write them. What goes wrong is a std::runtime_error that says what, not where.
#pragma once

#include <string>

#include "qzbase/persist/CBuffer.h"

std::string ReadFile(const std::string& pPath);

// A saved buffer is a file of the buffer's bytes and nothing else.
void SaveFile(const std::string& pPath, const qzbase::CBuffer& pBuffer);
qzbase::Ref<qzbase::CBuffer> LoadFile(const std::string& pPath);
