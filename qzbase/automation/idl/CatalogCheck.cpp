#include "qzbase/automation/idl/CatalogCheck.h"

#include <map>
#include <set>
#include <string_view>
#include <utility>

#include "qzbase/automation/Identities.h"
#include "qzbase/automation/idl/IdlText.h"

namespace qzbase::automation::idl {
namespace {

std::string Folded(std::string_view pName) {
  std::string folded(pName);
  for (char& each : folded)
    if (each >= 'A' && each <= 'Z') each = static_cast<char>(each + ('a' - 'A'));
  return folded;
}

bool IsAscii(std::u16string_view pText) {
  for (const char16_t each : pText)
    if (each < u' ' || each > u'~') return false;
  return true;
}

class Checker {
 public:
  explicit Checker(const Catalog& pCatalog) {
    See(kLibraryName, "the library");
    See(kResultName, "every result");
    for (const EnumDesc& enumeration : pCatalog.enumerations) Check(enumeration);
    for (const RecordDesc& record : pCatalog.records) Check(record);
    for (const ClassDesc& each : pCatalog.classes) Check(each);
  }

  std::vector<std::string> Faults() && { return std::move(faults_); }

 private:
  void Fault(const std::string& pWhere, const std::string& pWhat) { faults_.push_back(pWhere + ": " + pWhat); }

  // A name wherever it stands.
  void See(std::string_view pName, const std::string& pWhere) {
    const auto& [spelling, where] = spellings_.try_emplace(Folded(pName), pName, pWhere).first->second;
    if (spelling != pName) Fault(pWhere, "\"" + std::string(pName) + "\" is spelt \"" + spelling + "\" at " + where);
  }

  // A name that clients use without saying whose it is.
  void Declare(std::string_view pName, const std::string& pWhere) {
    See(pName, pWhere);
    if (!declared_.insert(Folded(pName)).second) Fault(pWhere, "\"" + std::string(pName) + "\" exists already");
  }

  void Check(const EnumDesc& pEnumeration) {
    const std::string where(pEnumeration.identity->name);
    Declare(where, where);
    for (const EnumItem& item : pEnumeration.items) Declare(item.name, where + "." + std::string(item.name));
  }

  void Check(const RecordDesc& pRecord) {
    const std::string name(pRecord.identity->name);
    Declare(name, name);
    for (const FieldDesc& field : pRecord.fields) {
      const std::string where = name + "." + std::string(field.name);
      See(field.name, where);
      CheckType(field.type, where);
    }
  }

  void Check(const ClassDesc& pClass) {
    const std::string name(pClass.identity->name);
    Declare(name, name);
    Declare("_" + name, name);
    for (const MemberDesc& member : pClass.members->rows) {
      const std::string where = name + "." + std::string(member.name);
      See(member.name, where);
      CheckType(member.result, where);
      for (const ParameterDesc& parameter : pClass.members->Parameters(member))
        Check(parameter, where + "(" + std::string(parameter.name) + ")");
    }
  }

  void Check(const ParameterDesc& pParameter, const std::string& pWhere) {
    See(pParameter.name, pWhere);
    CheckType(pParameter.type, pWhere);
    if (!IsAscii(pParameter.defaultValue.text)) Fault(pWhere, "the default is not a plain ASCII text");
    const TypeDesc& type = pParameter.type;
    if (type.base == BaseType::Record && !type.isArray && !pParameter.IsByRef())
      Fault(pWhere, "a record is passed by value");
  }

  void CheckType(const TypeDesc& pType, const std::string& pWhere) {
    if (pType.isArray && (pType.base == BaseType::Class || pType.base == BaseType::Object))
      Fault(pWhere, "an array of objects has no automation type; pass an array of variants");
  }

  std::map<std::string, std::pair<std::string, std::string>> spellings_;  // folded: first spelling and where it stands
  std::set<std::string> declared_;                                        // folded
  std::vector<std::string> faults_;
};

}  // namespace

std::vector<std::string> FaultsOf(const Catalog& pCatalog) {
  return Checker(pCatalog).Faults();
}

}  // namespace qzbase::automation::idl
