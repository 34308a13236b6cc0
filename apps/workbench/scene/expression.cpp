#include "workbench/scene/expression.h"

#include <cmath>

namespace workbench {

namespace {

constexpr int deepest = 100; // parentheses and signs within each other

std::optional<double> numberOf(QString const& text, QLocale const& locale) {
    bool ok = false;
    double number = locale.toDouble(text, &ok);
    if (!ok) {
        number = text.toDouble(&ok); // as in files
    }
    return ok ? std::optional(number) : std::nullopt;
}

class Parser {
public:
    Parser(QString const& text, QLocale const& locale) : text_(text), locale_(locale) {}

    std::optional<double> whole() {
        auto const value = sum();
        return at_ == text_.size() ? value : std::nullopt;
    }

private:
    std::optional<double> sum() {
        auto value = product();
        while (value && (skip('+') || skip('-'))) {
            bool const isPlus = text_[at_ - 1] == '+';
            auto const next = product();
            value = next ? std::optional(isPlus ? *value + *next : *value - *next) : std::nullopt;
        }
        return value;
    }

    std::optional<double> product() {
        auto value = factor();
        while (value && (skip('*') || skip('/'))) {
            bool const isTimes = text_[at_ - 1] == '*';
            auto const next = factor();
            value = next ? std::optional(isTimes ? *value * *next : *value / *next) : std::nullopt;
        }
        return value;
    }

    std::optional<double> factor() {
        if (++depth_ > deepest) {
            return {};
        }
        std::optional<double> value;
        if (skip('-')) {
            value = factor();
            value = value ? std::optional(-*value) : value;
        } else if (skip('(')) {
            value = sum();
            value = skip(')') ? value : std::nullopt;
        } else {
            value = number();
        }
        --depth_;
        return value;
    }

    std::optional<double> number() {
        blanks();
        qsizetype const begin = at_;
        auto const is = [this](auto... c) {
            return at_ < text_.size() && ((text_[at_] == c) || ...);
        };
        auto const digits = [&] {
            while (at_ < text_.size() && (text_[at_].isDigit() || is('.', ',') ||
                                          text_.mid(at_, 1) == locale_.decimalPoint())) {
                ++at_;
            }
        };
        digits();
        if (at_ > begin && is('e', 'E')) {
            ++at_;
            at_ += is('+', '-') ? 1 : 0;
            digits();
        }
        auto const value = numberOf(text_.mid(begin, at_ - begin), locale_);
        blanks();
        return value;
    }

    bool skip(char c) {
        blanks();
        bool const isThere = at_ < text_.size() && text_[at_] == c;
        at_ += isThere ? 1 : 0;
        return isThere;
    }

    void blanks() {
        while (at_ < text_.size() && text_[at_].isSpace()) {
            ++at_;
        }
    }

    QString text_;
    QLocale const& locale_;
    qsizetype at_ = 0;
    int depth_ = 0;
};

} // namespace

std::optional<double> evaluate(QString const& text, QLocale const& locale) {
    auto value = numberOf(text.trimmed(), locale);
    if (!value) {
        QString plain = text;
        plain.replace(locale.negativeSign(), "-");
        value = Parser(plain, locale).whole();
    }
    return value && std::isfinite(*value) ? value : std::nullopt;
}

bool isOfExpression(QChar c, QLocale const& locale) {
    return c.isDigit() || c.isSpace() || QString("+-*/()eE.,").contains(c) ||
           locale.decimalPoint().contains(c) || locale.negativeSign().contains(c) ||
           locale.groupSeparator().contains(c);
}

} // namespace workbench
