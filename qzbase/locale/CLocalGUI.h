// A node of the tree that says how a user interface is localised: an ID, properties with their texts, and child nodes.
//
// The root of a thread (ModResource::LocalizedGUI) has a node for every form, whose ID is the form's name. That node
// has a node for every control: its ID is the control's name, or, where the control belongs to a control array, the
// name, "_" and the index. Properties are named as the control names them, with an index in parentheses where they
// take one.
//
//   auto form = New<CLocalGUI>();
//   form->LetID(u"Settings");
//   form->AddProperty(u"Caption", u"Einstellungen");
//   auto option = New<CLocalGUI>();
//   option->LetID(u"Option1_2");                // Option1(2)
//   option->AddProperty(u"List(3)", u"Blau");
//   form->AddChild(option);
//   form->FindChild(u"option1", u"2");          // option
//
// Positions count from 1 and are checked against the slots, of which there are as many as the count says and at least
// one; outside them error 9 is raised. Counts are kept also when they are negative. IDs compare by text comparison.
//
// Children are the objects themselves, everywhere: what is handed out can be filled in place, and an object may stand
// in several trees. A child must be set (error 91); slot 1 of a node without children holds none. A node that is its
// own descendant is never given back.
//
// Record, without a tag: ID and property type as strings; the number of properties as a long, of each its ID and its
// value as strings; the number of children as a long, the record of each.
//
// Raises error 6 where a count leaves 32 bits, 7 where memory does not suffice, and 28 (out of stack space) for trees
// of more than 1,000 levels. What was reached before an error stays.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "qzbase/locale/CountedSlots.h"
#include "qzbase/persist/CBuffer.h"
#include "qzbase/runtime/Object.h"

namespace qzbase {

class CLocalGUI final : public runtime::Object {
 public:
  ~CLocalGUI() override;

  const std::u16string& ID() const noexcept { return id_; }
  void LetID(std::u16string_view pID) { id_ = pID; }

  // For the owner of the tree; means nothing here.
  const std::u16string& PropertyType() const noexcept { return propertyType_; }
  void LetPropertyType(std::u16string_view pPropertyType) { propertyType_ = pPropertyType; }

  // Growing fills the new slots with new nodes.
  std::int32_t NrChildren() const noexcept { return children_.Count(); }
  void LetNrChildren(std::int32_t pNrChildren);

  void AddChild(runtime::Ref<CLocalGUI> pChild);

  // The first node below this one, each before its own children, whose ID is `pID` or, where the index is not empty,
  // `pID` + "_" + `pIndex`; unset when there is none.
  runtime::Ref<CLocalGUI> FindChild(std::u16string_view pID, std::u16string_view pIndex) const;

  // The first direct child with this ID, -1 when there is none.
  std::int32_t ChildIndex(std::u16string_view pID) const;

  runtime::Ref<CLocalGUI> Child(std::int32_t pIdx) const { return children_[pIdx]; }
  void LetChild(std::int32_t pIdx, runtime::Ref<CLocalGUI> pChild);

  std::int32_t NrProperties() const noexcept { return properties_.Count(); }
  void LetNrProperties(std::int32_t pNrProperties) { properties_.Resize(pNrProperties); }

  // IDs are not compared with those that are there.
  void AddProperty(std::u16string_view pPropertyID, std::u16string_view pValue);

  const std::u16string& PropertyID(std::int32_t pIdx) const { return properties_[pIdx].id; }

  // The first property with this ID, -1 when there is none.
  std::int32_t PropertyIndex(std::u16string_view pID) const;

  const std::u16string& PropertyValue(std::int32_t pIdx) const { return properties_[pIdx].value; }
  void LetPropertyValue(std::int32_t pIdx, std::u16string_view pValue) { properties_[pIdx].value = pValue; }

  // The value of the first property with this ID, empty when there is none.
  std::u16string PropertyValueByID(std::u16string_view pPropertyID) const;

  // Without a buffer both do nothing.
  void SaveToBuffer(CBuffer* pBuffer, bool pAppend = false) const;
  void LoadFromBuffer(CBuffer* pBuffer, bool pAppend = false);

 private:
  struct Property {
    std::u16string id;
    std::u16string value;
  };

  runtime::Ref<CLocalGUI> FindBelow(std::u16string_view pKey, std::int32_t pLevel) const;
  void Save(CBuffer& pBuffer, std::int32_t pLevel) const;
  void Load(CBuffer& pBuffer, std::int32_t pLevel, std::int64_t& pNodesLeft);

  std::u16string id_;
  std::u16string propertyType_;
  CountedSlots<runtime::Ref<CLocalGUI>> children_;  // set up to the count
  CountedSlots<Property> properties_;
};

}  // namespace qzbase
