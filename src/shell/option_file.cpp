#include "shell/option_file.h"

#include <QDomDocument>
#include <QFile>
#include <utility>

namespace velk {

namespace {

/// No element for a file that is missing or malformed; nor have its children any.
QDomElement root_of(const QString& path) {
    QFile file(path);
    QDomDocument document;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file)) return {};
    return document.documentElement();
}

QDomElement child(const QDomElement& parent, int number) {
    QDomElement element = parent.firstChildElement();
    while (number-- > 0) element = element.nextSiblingElement();
    return element;
}

}  // namespace

void read_layout(const QString& file, Settings& settings) {
    const QDomElement screen = child(child(child(root_of(file), 1), 0), 0);
    for (const char* const name : {"x", "y", "w", "h"}) {
        const QString attribute = QString::fromLatin1(name);
        if (screen.hasAttribute(attribute))
            settings[std::string("preview:screen:") + name] =
                screen.attribute(attribute).toStdString();
    }
}

void read_addresses(const QString& file, Settings& settings) {
    constexpr std::pair<const char*, int> places[] = {
        {"url:help", 0},   {"url:support", 2}, {"url:brand", 3},
        {"url:update", 4}, {"url:product", 5}, {"url:candidate-product", 6}};
    const QDomElement addresses = child(root_of(file), 0);
    for (const auto& [key, place] : places) {
        const QDomElement address = child(addresses, place);
        if (!address.isNull()) settings[key] = address.text().toStdString();
    }
}

}  // namespace velk
