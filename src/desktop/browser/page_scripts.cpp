#include "desktop/browser/page_scripts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <algorithm>
#include <vector>

#include "desktop/widgets/text_edge.h"

namespace talvor::page_scripts {
namespace {

// A form or a picture of the page may bear the name of a member and stand in its place: members are
// taken from the prototypes.
const QString Tools = QStringLiteral(R"(
  const member = (type, name) => Object.getOwnPropertyDescriptor(type.prototype, name).get;
  const bodyOf = (doc) => member(Document, 'body').call(doc);
  const elementsOf = (doc, tag) => Document.prototype.getElementsByTagName.call(doc, tag);
  const attribute = (element, name) => Element.prototype.getAttribute.call(element, name) || '';
  const tell = (element) => {
    for (const kind of ['input', 'change'])
      element.dispatchEvent(new Event(kind, { bubbles: true, composed: true }));
  };
  const put = (element, value) => {
    switch (element.localName) {
      case 'select': {
        const row = Array.from(element.options).find((o) => o.text === value || o.value === value);
        if (!row) return;
        element.selectedIndex = row.index;
        break;
      }
      case 'input': {
        if (['password', 'file', 'hidden'].includes(element.type)) return;
        const before = element.value;
        element.value = value;
        // A field that takes numbers or dates alone has refused the value.
        if (value !== '' && element.value === '') {
          element.value = before;
          return;
        }
        break;
      }
      case 'textarea':
        element.value = value;
        break;
      default:
        return;
    }
    tell(element);
  };
)");

QString Script(const QString& body, const QJsonArray& arguments = {}) {
  const QString given = QString::fromUtf8(QJsonDocument(arguments).toJson(QJsonDocument::Compact));
  return QStringLiteral("((...given) => {%1 %2})(...%3)").arg(Tools, body, given);
}

// The widgets of a page count a line end as LF.
QString PageText(TextView value) { return ShownText(value); }

}  // namespace

QString BodyText(std::size_t characters) {
  // Numbers of a script are exact up to here.
  constexpr std::size_t Largest = 1ULL << 53;
  return Script(QStringLiteral("const body = bodyOf(document);"
                               "return body ? body.innerText.slice(0, given[0]) : '';"),
                {static_cast<double>(std::min(characters, Largest))});
}

QString BodyMarkup() {
  return Script(
      QStringLiteral("const body = bodyOf(document); return body ? body.innerHTML.slice(0, 10000000) : '';"));
}

QString Elements(std::size_t count) {
  return Script(QStringLiteral(R"(
    const all = [];
    const walk = (doc) => {
      const list = elementsOf(doc, '*');
      for (let i = 0; i < list.length && all.length < given[0]; ++i) all.push(list[i]);
      for (const tag of ['iframe', 'frame'])
        for (const frame of elementsOf(doc, tag))
          if (all.length < given[0] && frame.contentDocument) walk(frame.contentDocument);
    };
    walk(document);
    globalThis.talvorElements = all;
    return all.map((element) => [attribute(element, 'name'), attribute(element, 'id')]);
  )"),
                {static_cast<double>(count)});
}

QString SetValues(const std::vector<ElementValue>& values) {
  QJsonArray orders;
  for (const ElementValue& order : values) {
    QJsonArray pair;
    pair.append(static_cast<double>(order.index));
    pair.append(PageText(order.value));
    orders.append(pair);
  }
  QJsonArray arguments;
  arguments.append(orders);
  return Script(QStringLiteral(R"(
    const known = globalThis.talvorElements || [];
    for (const [index, value] of given[0]) if (known[index]) put(known[index], value);
  )"),
                arguments);
}

QString SetNamedValue(TextView name, TextView value) {
  return Script(QStringLiteral(R"(
    const found = Array.from(elementsOf(document, '*'))
      .filter((element) => attribute(element, 'name') === given[0] || attribute(element, 'id') === given[0]);
    if (found.length === 1) put(found[0], given[1]);
  )"),
                {PageText(name), PageText(value)});
}

}  // namespace talvor::page_scripts
