#pragma once

#include <limits>
#include <vector>

#include "base/text.h"
#include "platform/blank_page.h"

namespace talvor {

// What shows a page at an address.
class Browser {
 public:
  virtual ~Browser() = default;
  virtual void Navigate(TextView address) = 0;
  // The address of the page on show, "about:blank" before the first one.
  [[nodiscard]] virtual Text LocationURL() const = 0;
};

// How an element of a page is told: each text empty where the element has none.
struct PageElement {
  Text name;
  Text id;
};

struct ElementValue {
  std::size_t index = 0;  // from 0, in the list of the last `Elements`
  Text value;
};

// A browser whose pages can be read and whose forms can be filled. What cannot be done, as without a
// page, is passed over: a text is then empty, a value not set.
class DocumentBrowser : public Browser {
 public:
  static constexpr int Complete = 4;
  static constexpr std::size_t Whole = std::numeric_limits<std::size_t>::max();

  // Nothing happens when there is no page to go to.
  virtual void GoBack() = 0;
  virtual void GoForward() = 0;
  // Ends a load that is under way; the page stays as it stands.
  virtual void Stop() = 0;
  // `Complete` once the page asked for last is loaded or has failed, less before that.
  [[nodiscard]] virtual int ReadyState() const = 0;

  // The first characters of the text of the page's body, its lines ending in CR LF. Empty for a page
  // without a body, and for a page that could not be loaded.
  [[nodiscard]] virtual Text BodyText(std::size_t characters) = 0;
  // The markup inside the body.
  [[nodiscard]] virtual Text BodyMarkup() = 0;
  // Puts the selected text on the clipboard, and leaves that as it is without a selection.
  virtual void CopySelection() = 0;

  // The first elements of the document in its order, the root first; the frames' own documents follow,
  // as far as the page may reach them.
  [[nodiscard]] virtual std::vector<PageElement> Elements(std::size_t count) = 0;
  // Sets values as if the user had typed or chosen them, on form fields only: never on a password, a
  // file or a hidden field. A choice list takes the row whose text or value is the given one, if any.
  virtual void SetValues(const std::vector<ElementValue>& values) = 0;
  // The same for the one element of that name or id; nothing when there is none or more than one.
  virtual void SetNamedValue(TextView name, TextView value) = 0;
};

}  // namespace talvor
