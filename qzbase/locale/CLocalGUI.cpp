#include "qzbase/locale/CLocalGUI.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "qzbase/runtime/AutomationError.h"
#include "qzbase/runtime/Positions.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase {
namespace {

using runtime::Raise;
using runtime::Ref;
using runtime::RuntimeError;

constexpr std::int32_t kMostLevels = 1000;

// Of a property and of a node, with markers or without: the counts of their texts, a node's two counts.
constexpr std::int32_t kLeastProperty = 8;
constexpr std::int32_t kLeastNode = 16;

// Bytes that a tree may count on behind the end of its buffer.
constexpr std::int32_t kTolerance = 65'536;

void CheckLevel(std::int32_t pLevel) {
  if (pLevel > kMostLevels) Raise(RuntimeError::OutOfStackSpace);
}

Ref<CLocalGUI> Checked(Ref<CLocalGUI> pChild) {
  if (!pChild) Raise(RuntimeError::ObjectNotSet);
  return pChild;
}

// The first position from 1 to `pCount` that `pMatches` accepts; -1 when there is none.
template <class Predicate>
std::int32_t FirstOf(std::int32_t pCount, Predicate pMatches) {
  for (const std::int32_t i : runtime::Positions(1, pCount))
    if (pMatches(i)) return i;
  return -1;
}

}  // namespace

// Nodes that nobody else holds are taken apart one by one here: hosts may build trees so deep that destructors which
// call one another would not fit on the stack.
CLocalGUI::~CLocalGUI() {
  std::vector<Ref<CLocalGUI>> dropped = std::move(children_.Elements());
  while (!dropped.empty()) {
    const Ref<CLocalGUI> node = std::move(dropped.back());
    dropped.pop_back();
    if (node.use_count() != 1) continue;
    for (Ref<CLocalGUI>& child : node->children_.Elements()) dropped.push_back(std::move(child));
  }
}

void CLocalGUI::LetNrChildren(std::int32_t pNrChildren) {
  children_.MakeSlots(pNrChildren);
  runtime::WithMemory([&] {
    for (const std::int32_t i : runtime::Positions(std::max(children_.Count(), 0) + 1, pNrChildren))
      if (!children_[i]) children_[i] = runtime::New<CLocalGUI>();
  });
  children_.Resize(pNrChildren);
}

void CLocalGUI::AddChild(Ref<CLocalGUI> pChild) {
  children_.Append(Checked(std::move(pChild)));
}

void CLocalGUI::LetChild(std::int32_t pIdx, Ref<CLocalGUI> pChild) {
  children_[pIdx] = Checked(std::move(pChild));
}

Ref<CLocalGUI> CLocalGUI::FindChild(std::u16string_view pID, std::u16string_view pIndex) const {
  std::u16string key(pID);
  if (!pIndex.empty()) key.append(u"_").append(pIndex);
  return FindBelow(key, 1);
}

Ref<CLocalGUI> CLocalGUI::FindBelow(std::u16string_view pKey, std::int32_t pLevel) const {
  CheckLevel(pLevel);
  const runtime::LocaleRules& rules = runtime::ThreadLocale();
  for (const std::int32_t i : runtime::Positions(1, children_.Count())) {
    if (runtime::EqualText(children_[i]->id_, pKey, rules)) return children_[i];
    if (Ref<CLocalGUI> found = children_[i]->FindBelow(pKey, pLevel + 1)) return found;
  }
  return nullptr;
}

std::int32_t CLocalGUI::ChildIndex(std::u16string_view pID) const {
  return FirstOf(NrChildren(), [&](std::int32_t i) { return runtime::EqualText(children_[i]->id_, pID); });
}

void CLocalGUI::AddProperty(std::u16string_view pPropertyID, std::u16string_view pValue) {
  properties_.Append({std::u16string(pPropertyID), std::u16string(pValue)});
}

std::int32_t CLocalGUI::PropertyIndex(std::u16string_view pID) const {
  return FirstOf(NrProperties(), [&](std::int32_t i) { return runtime::EqualText(properties_[i].id, pID); });
}

std::u16string CLocalGUI::PropertyValueByID(std::u16string_view pPropertyID) const {
  const std::int32_t position = PropertyIndex(pPropertyID);
  return position < 1 ? std::u16string() : PropertyValue(position);
}

void CLocalGUI::SaveToBuffer(CBuffer* pBuffer, bool pAppend) const {
  if (pBuffer == nullptr) return;
  if (!pAppend) pBuffer->Clear();
  Save(*pBuffer, 1);
}

void CLocalGUI::Save(CBuffer& pBuffer, std::int32_t pLevel) const {
  CheckLevel(pLevel);
  pBuffer.AddString(id_);
  pBuffer.AddString(propertyType_);
  pBuffer.AddLong(NrProperties());
  for (const std::int32_t i : runtime::Positions(1, NrProperties())) {
    pBuffer.AddString(properties_[i].id);
    pBuffer.AddString(properties_[i].value);
  }
  pBuffer.AddLong(NrChildren());
  for (const std::int32_t i : runtime::Positions(1, NrChildren())) children_[i]->Save(pBuffer, pLevel + 1);
}

void CLocalGUI::LoadFromBuffer(CBuffer* pBuffer, bool pAppend) {
  if (pBuffer == nullptr) return;
  if (!pAppend) pBuffer->ResetPos();
  std::int64_t nodesLeft = (std::int64_t{pBuffer->Size()} + kTolerance) / kLeastNode;
  Load(*pBuffer, 1, nodesLeft);
}

// Every node of a chain could count on thousands of children behind the end of the buffer: they are counted against
// what the whole buffer can hold.
void CLocalGUI::Load(CBuffer& pBuffer, std::int32_t pLevel, std::int64_t& pNodesLeft) {
  CheckLevel(pLevel);
  id_ = pBuffer.NextString();
  propertyType_ = pBuffer.NextString();

  const std::int32_t nrProperties = pBuffer.NextCount(kLeastProperty);
  properties_.Clear();
  properties_.Resize(nrProperties);
  for (const std::int32_t i : runtime::Positions(1, nrProperties)) {
    properties_[i].id = pBuffer.NextString();
    properties_[i].value = pBuffer.NextString();
  }

  const std::int32_t nrChildren = pBuffer.NextCount(kLeastNode);
  pNodesLeft -= std::max(nrChildren, 0);
  if (pNodesLeft < 0) Raise(RuntimeError::OutOfMemory);
  children_.Clear();
  children_.Resize(std::min(nrChildren, 0));
  while (children_.Count() < nrChildren) {
    auto child = runtime::New<CLocalGUI>();
    child->Load(pBuffer, pLevel + 1, pNodesLeft);
    children_.Append(std::move(child));
  }
}

}  // namespace qzbase
