// The driver: objects of the library, each beside its model, and random calls of both.
//
// A sequence is a list of numbers, one for each call: the number chooses object, member and arguments. After each call
// results and error numbers must agree, and the thread's last error must be as before where there was none; at the end
// everything that the members marked as shown tell about every object, and which objects are one and the same.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "tests/models/Model.h"

namespace qzbase::models {

class World {
 public:
  // One object for each class given; a class may come several times. The first ones are called more often.
  World(std::span<const Class* const> pClasses, bool pTells);

  // Calls a member. False where the sequence ends.
  bool Step(std::uint64_t pChoices);
  void CompareAll();

  std::string difference;  // empty as long as library and models agree
  std::string calls;       // where they are to be told

  Pair Object(std::size_t pEntry) const;
  std::vector<std::size_t> Find(const Class* pClass) const;
  Long Choose(std::size_t pCount);  // from 0 on

 private:
  struct Entry {
    Something library;
    Ref<Model> model;
  };
  struct Outcome {
    Variant value;
    Long error = 0;
  };

  Outcome Call(runtime::Object& pObject, const Member& pMember, std::vector<Variant> pArguments);
  bool SameObject(const Something& pLibrary, const Something& pModel, const std::string& pPath);
  bool Same(const Outcome& pLibrary, const Outcome& pModel, const std::string& pPath);
  bool SameSlots(runtime::Object& pLibrary, Model& pModel, const Member& pMember, const std::string& pPath);
  void Put(const Variant& pLibrary, const Variant& pModel);
  bool Differs(const std::string& pHow);
  std::string Show(const Variant& pValue) const;

  std::vector<Entry> entries_;
  std::map<const runtime::Object*, const runtime::Object*> twins_;  // both ways
  std::uint64_t choices_ = 0;
  bool tells_;
};

// The difference that a sequence shows, "" if none; with the calls, which takes longer.
std::string Run(std::span<const Class* const> pClasses, std::span<const std::uint64_t> pSequence, bool pTells = false);

// Runs random sequences until the seconds are over; the first difference, by the shortest sequence that still shows it,
// with its calls and its numbers.
std::string RunRandomly(std::span<const Class* const> pClasses, std::uint64_t pSeed, double pSeconds);

}  // namespace qzbase::models
