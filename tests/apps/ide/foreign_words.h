#pragma once

#include <QCoreApplication>
#include <QTranslator>

namespace fabula::test {

/// While it lives, every text of the windows is a word of another language: "~Messages".
class ForeignWords final : public QTranslator {
  public:
    ForeignWords() { QCoreApplication::installTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override {
        return QString("~") + QString::fromUtf8(source);
    }
};

}  // namespace fabula::test
