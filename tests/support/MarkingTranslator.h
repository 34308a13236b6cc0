#pragma once

#include <QCoreApplication>
#include <QTranslator>

/// While it lives, every text comes translated as "context:text".
class MarkingTranslator final : public QTranslator {
public:
    MarkingTranslator() { QCoreApplication::installTranslator(this); }
    ~MarkingTranslator() override { QCoreApplication::removeTranslator(this); }
    QString translate(char const* context, char const* text, char const*, int) const override {
        return QString(context) + ':' + text;
    }
    bool isEmpty() const override { return false; }
};
