#include "zcore/splitTrailingNumber.h"

std::pair<QString, int> splitTrailingNumber(QString const& text) {
    qsizetype start = text.size();
    while (start > 0 && text[start - 1] >= u'0' && text[start - 1] <= u'9') {
        --start;
    }
    bool fits = false;
    int const number = QStringView(text).mid(start).toInt(&fits);
    if (start == text.size() || !fits) {
        return {text, 0};
    }
    qsizetype const end = start > 0 && text[start - 1] == u' ' ? start - 1 : start;
    return {text.left(end), number};
}
