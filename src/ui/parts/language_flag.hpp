// Image1 and Image2: the flags that choose the language.
#pragma once

#include <QAbstractButton>

namespace kvt {

enum class flag_kind { english, german };

/// A flat flag drawn by code; the one of the current language is framed.
class language_flag : public QAbstractButton {
    Q_OBJECT

  public:
    language_flag(const char* name, flag_kind kind);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    flag_kind kind_;
};

}  // namespace kvt
