#include "qzbase/text/WordReplace.h"

#include <algorithm>
#include <cstddef>

#include "qzbase/runtime/Characters.h"
#include "qzbase/runtime/TextCompare.h"

namespace qzbase {
namespace {

std::size_t Find(std::u16string_view pText, std::u16string_view pSought, std::size_t pStart) {
  return pStart < pText.size() ? runtime::FindText(pText, pSought, pStart) : std::u16string_view::npos;
}

bool BelongsToWord(char16_t pCharacter) {
  const std::u16string_view text(&pCharacter, 1);
  return runtime::CompareText(text, u"A") >= 0 && runtime::CompareText(text, u"z") <= 0;
}

// An expression while words in it are replaced: what is done, followed by what is left of the source. Positions count
// through both, from 0, so that the text is never copied as a whole.
//
// The search goes on inside what was inserted. An occurrence there would mostly be found again in its own replacement,
// for ever, and is passed over. Two kinds are not: one that ends behind the inserted text, since it uses that up, and
// one before the very last character, since that is no follower now and will be one when more text stands behind it.
class WordReplacement {
 public:
  WordReplacement(std::u16string_view pSource, std::u16string_view pOld, std::u16string_view pNew)
      : left_(pSource), old_(pOld), new_(pNew) {}

  std::u16string Run() {
    while (FindNext()) {
      if (IsWholeWord()) Replace();
      search_ = found_ + 1;
    }
    return done_.append(left_);
  }

 private:
  std::size_t Size() const { return done_.size() + left_.size(); }
  char16_t At(std::size_t pPosition) const {
    return pPosition < done_.size() ? done_[pPosition] : left_[pPosition - done_.size()];
  }

  bool FindNext() {
    if (search_ < done_.size() && (FindAcross() || FindBeforeLast())) return true;
    const std::size_t start = std::max(search_, done_.size());
    found_ = Find(left_, old_, start - done_.size());
    if (found_ == std::u16string_view::npos) return false;
    found_ += done_.size();
    return true;
  }

  // Looks for an occurrence that begins in inserted text and ends behind it.
  bool FindAcross() {
    const std::size_t overlap = old_.size() - 1;
    const std::size_t first = std::max(search_, done_.size() - std::min(done_.size(), overlap));
    std::u16string seam = done_.substr(first);
    seam.append(left_.substr(0, overlap));
    const std::size_t at = Find(seam, old_, 0);
    if (at == std::u16string_view::npos) return false;
    found_ = first + at;
    return true;
  }

  // Looks for an occurrence in inserted text before the last character of all, which as a follower would forbid its
  // replacement. Once is enough: only what never ends comes here again.
  bool FindBeforeLast() {
    const std::size_t length = old_.size() + 1;
    if (!left_.empty() || lastIsSplitOff_ || done_.size() < search_ + length || MayFollow(done_.back())) return false;
    found_ = done_.size() - length;
    return runtime::EqualText(std::u16string_view(done_).substr(found_, old_.size()), old_);
  }

  static bool Separates(char16_t pCharacter) { return pCharacter != u'.' && !BelongsToWord(pCharacter); }
  static bool MayFollow(char16_t pCharacter) { return pCharacter != u'(' && Separates(pCharacter); }

  bool IsWholeWord() const {
    if (found_ > 0 && !Separates(At(found_ - 1))) return false;
    const std::size_t follower = found_ + old_.size();
    return follower + 1 >= Size() || MayFollow(At(follower));
  }

  void Replace() {
    const std::size_t end = found_ + old_.size();
    if (end < done_.size()) {
      left_ = new_.substr(new_.size() - 1);
      lastIsSplitOff_ = true;
      done_.resize(end);
    }
    const std::size_t used = end - done_.size();  // of what is left
    if (found_ < done_.size())
      done_.resize(found_);
    else
      done_.append(left_.substr(0, found_ - done_.size()));
    done_.append(new_);
    left_.remove_prefix(used);
  }

  std::u16string done_;
  std::u16string_view left_;
  std::u16string_view old_;
  std::u16string_view new_;
  std::size_t search_ = 0;  // where the search goes on
  std::size_t found_ = 0;   // the occurrence found last
  bool lastIsSplitOff_ = false;
};

}  // namespace

std::u16string ReplaceWord(std::u16string_view pString, std::u16string_view pOld, std::u16string_view pNew) {
  // An empty word is found everywhere, but replacing nothing changes nothing.
  if (pOld.empty() || runtime::EqualText(pNew, pOld)) return std::u16string(pString);
  return WordReplacement(pString, pOld, pNew).Run();
}

std::u16string ReplaceNumberDelimiter(std::u16string_view pSource, std::u16string_view pOld, std::u16string_view pNew) {
  if (pOld.empty() || runtime::EqualText(pNew, pOld)) return std::u16string(pSource);

  std::u16string result;
  std::size_t copied = 0;  // characters of the source that are in the result or replaced
  std::size_t search = 0;
  for (std::size_t at = Find(pSource, pOld, 0); at != std::u16string_view::npos; at = Find(pSource, pOld, search)) {
    search = at + 1;
    result.append(pSource.substr(copied, at - copied));
    copied = at;
    if (result.empty() || !runtime::IsDecimalDigit(result.back()) || search >= pSource.size() ||
        !runtime::IsDecimalDigit(pSource[search]))
      continue;
    result.append(pNew);
    copied = at + 1;
    if (pNew.empty()) ++search;  // the following character has moved to where the delimiter was
  }
  return result.append(pSource.substr(copied));
}

}  // namespace qzbase
