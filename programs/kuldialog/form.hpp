// SPDX-License-Identifier: MIT
//
// Lines to enter that stand where they like on an area that scrolls. There are text boxes for those
// in view alone; the texts of the others are kept here.
#ifndef KULDIALOG_FORM_HPP
#define KULDIALOG_FORM_HPP

#include "window.hpp"

namespace kuldialog {

struct Field {
    char* text; // owned
    const char* label;
    int labelY; // from 0
    int labelX;
    int y;
    int x;
    int shown; // columns
    int limit; // characters; 0 for a text that only shows
    bool secret;
};

class Fields {
public:
    explicit Fields(Window& window) : window_(window) {}
    ~Fields();
    Fields(const Fields&) = delete;
    Fields& operator=(const Fields&) = delete;

    // Inserts a field, the owner of its text from then on. False without memory.
    bool insert(int nPlace, const Field& field);
    bool add(const Field& field) { return insert(count_, field); }
    void remove(int nPlace);

    int count() const { return count_; }
    Field& operator[](int nPlace) { return fields_[nPlace]; }
    int rows() const;
    int columns() const;

    // Shows the window's part of them, from the current one on.
    void create();

    int current() const { return current_; }
    void keep();                       // what is entered, as the fields' texts
    void go(int nPlace);               // and shows it; a place that is none does nothing
    void goOn(int nStep, int nFields); // to the next one that can be entered
    void fill();                       // anew, after fields came or went
    int key(int nKey);                 // the keys that both kinds have

private:
    bool isInView(int nRow) const { return nRow >= top_ && nRow < top_ + window_.nBodyHeight; }
    int slotOf(int nPlace) const;

    Window& window_;
    Field* fields_ = nullptr;
    int count_ = 0;
    int room_ = 0;
    int top_ = 0;
    int current_ = 0;
    int slots_ = 0;             // text boxes that there are
    int bound_ = 0;             // those in use
    int labels_ = 0;            // labels that there are
    int* slotPlaces_ = nullptr; // the field of each text box
};

} // namespace kuldialog

#endif
