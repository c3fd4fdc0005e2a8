// qt_language: the language of Qt's own texts, those of its file dialogs and of its menus in boxes.
#pragma once

#include <QTranslator>

#include <cstdint>

namespace kvt {

class qt_language {
  public:
    qt_language();

    /// Qt speaks German for 2, English for anything else. Windows that are built later show it.
    void follow(std::int16_t language);

  private:
    QTranslator german_;
    bool is_german_ = false;
};

}  // namespace kvt
