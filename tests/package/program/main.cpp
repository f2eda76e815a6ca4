#include <cstdio>

#include "qzbase/automation/ClassTable.h"
#include "qzbase/data/CDblVector.h"

int main() {
  const auto vector = qzbase::automation::CreateObject(u"QZBase.CDblVector");
  vector->Call(u"SetFromString", u"(3;1;2)");
  vector->Call(u"Sort");
  std::printf("%g %g\n", static_cast<qzbase::CDblVector&>(*vector).Value(1), 0.5);
}
