#include "app/Sluzby_Oken.h"

Prace::Prace(Sluzby_Oken* sluzby) : Sluzby(sluzby) {
    if (Sluzby != nullptr && !Sluzby->Pracuje()) {
        Sluzby->Zacni_Praci();
        Zacala = true;
    }
}

Prace::~Prace() {
    if (Zacala && Sluzby->Pracuje())
        Sluzby->Ukonci_Praci();
}

Prubeh Prace::Prubeh_Prace() const {
    return Sluzby != nullptr ? Sluzby->Prubeh_Prace() : Prubeh();
}
