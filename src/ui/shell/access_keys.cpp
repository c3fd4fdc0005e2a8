#include "ui/shell/access_keys.hpp"

#include <QAction>
#include <QHash>
#include <QList>
#include <QMenu>
#include <QSet>

namespace kvt {

namespace {

bool is_sign_of_key(const QString& text, qsizetype at) {
    return text[at] == '&' && at + 1 < text.size() && text[at + 1] != '&';
}

/// Where the letter of the access key stands; -1 without one. "&&" is a sign of the text.
qsizetype key_place(const QString& text) {
    for (qsizetype at = 0; at < text.size(); ++at) {
        if (is_sign_of_key(text, at)) {
            return at + 1;
        }
        if (text[at] == '&') {
            ++at;
        }
    }
    return -1;
}

bool begins_word(const QString& text, qsizetype at) {
    return at == 0 || !text[at - 1].isLetterOrNumber();
}

/// The places that may carry the key, first letters of words before the others.
QList<qsizetype> possible_places(const QString& text) {
    QList<qsizetype> places;
    for (const bool begins : {true, false}) {
        for (qsizetype at = 0; at < text.size(); ++at) {
            if (text[at].isLetterOrNumber() && begins_word(text, at) == begins) {
                places.append(at);
            }
        }
    }
    return places;
}

/// Which entry has a letter. A key that stands in a text is not moved.
class key_table {
  public:
    explicit key_table(const QStringList& texts) : texts_(texts), places_(texts.size(), -1) {}

    bool is_taken(QChar letter) const { return holders_.contains(letter.toLower()); }
    void keep(QChar letter) { holders_.insert(letter.toLower(), FIXED); }

    /// A free letter, else one whose entry has another to go to.
    void find_key(qsizetype entry) {
        QSet<QChar> tried;
        if (!take_free(entry)) {
            take_from_another(entry, tried);
        }
    }

    /// Where the sign of the key goes; -1 without a key.
    qsizetype place_of(qsizetype entry) const { return places_[entry]; }

  private:
    static constexpr qsizetype FIXED = -1;

    bool take_free(qsizetype entry) {
        for (const qsizetype at : possible_places(texts_[entry])) {
            if (!is_taken(texts_[entry][at])) {
                take(entry, at);
                return true;
            }
        }
        return false;
    }

    bool take_from_another(qsizetype entry, QSet<QChar>& tried) {
        for (const qsizetype at : possible_places(texts_[entry])) {
            const QChar letter = texts_[entry][at].toLower();
            const qsizetype holder = holders_.value(letter, FIXED);
            if (holder == FIXED || tried.contains(letter)) {
                continue;
            }
            tried.insert(letter);
            if (take_free(holder) || take_from_another(holder, tried)) {
                take(entry, at);
                return true;
            }
        }
        return false;
    }

    void take(qsizetype entry, qsizetype at) {
        holders_.insert(texts_[entry][at].toLower(), entry);
        places_[entry] = at;
    }

    const QStringList& texts_;
    QHash<QChar, qsizetype> holders_;
    QList<qsizetype> places_;
};

}  // namespace

QStringList with_access_keys(const QStringList& texts) {
    QStringList keyed = texts;
    key_table keys(keyed);
    QList<qsizetype> without_key;
    for (qsizetype i = 0; i < keyed.size(); ++i) {
        const qsizetype at = key_place(keyed[i]);
        if (at >= 0 && !keys.is_taken(keyed[i][at])) {
            keys.keep(keyed[i][at]);
            continue;
        }
        if (at >= 0) {
            keyed[i].remove(at - 1, 1);
        }
        without_key.append(i);
    }
    for (const qsizetype i : without_key) {
        keys.find_key(i);
    }
    for (const qsizetype i : without_key) {
        if (const qsizetype at = keys.place_of(i); at >= 0) {
            keyed[i].insert(at, '&');
        }
    }
    return keyed;
}

void give_access_keys(QMenu& menu) {
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&menu] {
        QList<QAction*> entries;
        QStringList texts;
        for (QAction* action : menu.actions()) {
            if (action->isVisible() && !action->isSeparator()) {
                entries.append(action);
                texts.append(action->text());
            }
        }
        const QStringList keyed = with_access_keys(texts);
        for (qsizetype i = 0; i < entries.size(); ++i) {
            entries[i]->setText(keyed[i]);
        }
    });
}

}  // namespace kvt
