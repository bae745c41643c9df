#pragma once
// What the engine needs to ask or tell the user beyond the common notice. The windows give the
// real dialogs; tests and tombi-cli give stand-ins whose answers are preset.

#include <QString>

class Dialogy {
public:
    enum class Ikona { Informace, Otaznik, Vykricnik, Stop };

    virtual ~Dialogy() = default;
    // The common notice that does not hold up its caller.
    virtual void Zprava(const QString& text) = 0;
    // A message box with a title and an OK button.
    virtual void Okno_Zpravy(Ikona ikona, const QString& titulek, const QString& text) = 0;
};
