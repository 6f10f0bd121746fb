// SPDX-License-Identifier: MIT
#include "form.hpp"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include <kulgui.h>

#include "boxes.hpp"
#include "clamp.hpp"
#include "entry.hpp"
#include "options.hpp"
#include "output.hpp"

namespace kuldialog {

namespace {

constexpr int kFirst = kBody + 1; // text box; kBody would be all there is
constexpr int kLeastShown = 8;    // columns of a line, if it is as long
constexpr int kOutside = 9999;    // a row that no window has

} // namespace

Fields::~Fields()
{
    for (int i = 0; i < count_; ++i)
        std::free(fields_[i].text);
    std::free(fields_);
    std::free(slotPlaces_);
}

bool Fields::insert(int nPlace, const Field& field)
{
    if (field.text && count_ == room_) {
        const int nRoom = 2 * room_ + 8;
        void* grown = std::realloc(fields_, static_cast<std::size_t>(nRoom) * sizeof(Field));
        if (grown) {
            fields_ = static_cast<Field*>(grown);
            room_ = nRoom;
        }
    }
    if (!field.text || count_ == room_) {
        std::free(field.text);
        return false;
    }
    std::copy_backward(fields_ + nPlace, fields_ + count_, fields_ + count_ + 1);
    fields_[nPlace] = field;
    ++count_;
    return true;
}

void Fields::remove(int nPlace)
{
    std::free(fields_[nPlace].text);
    std::copy(fields_ + nPlace + 1, fields_ + count_, fields_ + nPlace);
    --count_;
}

int Fields::rows() const
{
    int nRows = 0;
    for (int i = 0; i < count_; ++i)
        nRows = std::max({nRows, fields_[i].y + 1, *fields_[i].label ? fields_[i].labelY + 1 : 0});
    return nRows;
}

int Fields::columns() const
{
    int nColumns = 0;
    for (int i = 0; i < count_; ++i)
        nColumns = std::max({nColumns, fields_[i].x + fields_[i].shown,
                             fields_[i].labelX + kuldialog::columns(fields_[i].label)});
    return nColumns;
}

int Fields::slotOf(int nPlace) const
{
    int nSlot = 0;
    while (nSlot < bound_ && slotPlaces_[nSlot] != nPlace)
        ++nSlot;
    return nSlot;
}

void Fields::keep()
{
    for (int i = 0; i < bound_; ++i) {
        char*& text = fields_[slotPlaces_[i]].text;
        if (char* entry =
                copyOf(entered(window_, kFirst + i), std::strlen(entered(window_, kFirst + i)))) {
            explicit_bzero(text, std::strlen(text));
            std::free(text);
            text = entry;
        } else {
            made(-1);
        }
    }
    bound_ = 0;
}

void Fields::fill()
{
    const int nLabelsBefore = labels_;
    labels_ = 0;
    const auto label = [&](int nY, int nX, const char* szText, int nWidth) {
        Buffer text;
        text.add(szText);
        text.add(' ');
        const int nRef = kItem + labels_++;
        kullabel_create(window_.nChain, nRef);
        made(kullabel_config(window_.nChain, nRef, colors[kWindowColor], KUL_KEEP, 2 + nX,
                             window_.nBodyY + nY - top_,
                             std::max(std::min(nWidth + 1, window_.nWidth - 3 - nX), 0), 1, LEFT,
                             NOBORDER, text.text()));
    };
    for (int i = 0; i < count_; ++i) {
        const Field& field = fields_[i];
        if (*field.label && isInView(field.labelY))
            label(field.labelY, field.labelX, field.label, kuldialog::columns(field.label));
        if (!isInView(field.y))
            continue;
        if (field.limit == 0)
            label(field.y, field.x, field.text, field.shown);
        else if (bound_ < window_.nBodyHeight * 4)
            slotPlaces_[bound_++] = i;
    }
    for (int i = 0; i < bound_; ++i) {
        const Field& field = fields_[slotPlaces_[i]];
        // On a narrow screen it covers a part of its label.
        const int nX = std::min(field.x, window_.innerWidth() - std::min(field.shown, kLeastShown));
        createLine(window_, kFirst + i, 2 + nX, window_.nBodyY + field.y - top_,
                   std::min(field.shown, window_.innerWidth() - nX), field.secret ? MASK : NOMASK,
                   field.limit, field.text);
        kultextbox_setCursor(window_.nChain, kFirst + i, 0);
    }
    for (int i = 0; i < slots_; ++i)
        SetUIVisibility(window_.nChain, kFirst + i, i < bound_ ? T : F);
    while (labels_ < nLabelsBefore)
        label(kOutside, 0, "", 0);
    slots_ = std::max(slots_, bound_);
}

void Fields::create()
{
    slotPlaces_ = static_cast<int*>(
        std::malloc((static_cast<std::size_t>(window_.nBodyHeight) * 4 + 1) * sizeof(int)));
    if (!slotPlaces_)
        return made(-1);
    // All that will ever be there come first, before the buttons.
    for (; slots_ < std::min(window_.nBodyHeight * 4, count_); ++slots_) {
        kultextbox_create(window_.nChain, kFirst + slots_);
        SetUIVisibility(window_.nChain, kFirst + slots_, F);
    }
    fill();
    current_ = -1;
    goOn(1, 1);
}

void Fields::go(int nPlace)
{
    if (nPlace < 0 || nPlace >= count_ || !slotPlaces_) // without memory
        return;
    const int nRow = fields_[nPlace].y;
    current_ = nPlace;
    if (!isInView(nRow)) {
        keep();
        top_ = kul::clamp(top_, std::max(nRow - window_.nBodyHeight + 1, 0), nRow);
        fill();
    }
    window_.nFocus = kFirst + slotOf(nPlace);
    kulgui_setFocus(window_.nChain, window_.nFocus);
}

void Fields::goOn(int nStep, int nFields)
{
    int nLast = current_;
    for (int i = current_ + nStep; i >= 0 && i < count_ && nFields > 0; i += nStep) {
        if (fields_[i].limit > 0) {
            nLast = i;
            --nFields;
        }
    }
    if (nLast != current_)
        go(nLast);
}

int Fields::key(int nKey)
{
    const int nPage = std::max(window_.nBodyHeight - 1, 1);
    if (window_.has(kButtonRow)) {
        const bool vertical = nKey == KS_UP || nKey == KS_DOWN;
        if (name == kDialog && (vertical || nKey == KS_LEFT || nKey == KS_RIGHT))
            window_.goToButtons(nKey == KS_UP || nKey == KS_LEFT ? -1 : 1);
        else if (vertical)
            go(current_);
        else
            return nKey;
        return 0;
    }
    switch (nKey) {
    case KS_UP:
        goOn(-1, 1);
        return 0;
    case KS_DOWN:
        goOn(1, 1);
        return 0;
    case KS_PAGEUP:
        goOn(-1, nPage);
        return 0;
    case KS_PAGEDOWN:
        goOn(1, nPage);
        return 0;
    case KS_TAB:
    case KS_BACKTAB:
        window_.goToButtons(0);
        return 0;
    default:
        return nKey;
    }
}

namespace {

// A field of the command line: label, its row and column, text, its row and column, columns shown,
// characters; and of a mixed form its kind.
Field fieldOf(char** tokens, int nVariant)
{
    constexpr int kSecretBit = 1;
    constexpr int kFixedBit = 2;
    const auto number = [tokens](int nPlace) { return integer(tokens[nPlace]); };
    const int nKind = nVariant == kMixedForm ? number(8) : nVariant == kSecretForm ? kSecretBit : 0;
    const int nShown = number(6);
    const bool fixed = nShown <= 0 || (nKind & kFixedBit);
    const int nLimit = fixed ? 0 : number(7) > 0 ? number(7) : nShown;
    Field field{copyOf(tokens[3], std::strlen(tokens[3])),
                tokens[0],
                std::max(number(1) - 1, 0),
                std::max(number(2) - 1, 0),
                std::max(number(4) - 1, 0),
                std::max(number(5) - 1, 0),
                nShown != 0 ? std::abs(nShown) : columns(tokens[3]),
                nLimit,
                (nKind & kSecretBit) != 0};
    if (field.text && !fixed)
        field.text[bytesWithin(field.text, nLimit)] = '\0';
    return field;
}

int formKey(Window& window, int nKey)
{
    auto& fields = *static_cast<Fields*>(window.body);
    if (nKey == KS_ENTER && !window.has(kButtonRow)) {
        Window::chooseDefault();
        return 0;
    }
    return fields.key(nKey);
}

} // namespace

Answer runForm(const Call& call)
{
    constexpr int kBefore = 4;
    const int nSize = call.variant == kMixedForm ? 9 : 8;
    const Settings& settings = call.settings;
    Window window(call, call.argument(0));
    Fields fields(window);
    for (int i = kBefore; i < call.count; i += nSize) {
        if (!fields.add(fieldOf(call.arguments + i, call.variant)))
            return kFailed;
    }
    const int nAsked = call.number(3);
    if (!window.open(kOkCancel, nAsked > 0 ? nAsked : fields.rows(), 1, fields.columns()))
        return kFailed;
    fields.create();
    const char* szDefault = settings.text(kDefaultItem, "");
    for (int i = 0; *szDefault && i < fields.count(); ++i) {
        if (std::strcmp(fields[i].label, szDefault) == 0 && fields[i].limit > 0)
            fields.go(i);
    }
    window.body = &fields;
    window.onKey = formKey;
    const Answer answer = window.run();
    if (answer != kAccepted && answer != kExtra && answer != kHelped)
        return answer;
    fields.keep();
    beginAnswer(settings);
    if (answer == kHelped) {
        addHelp(settings, fields.current() >= 0 ? fields[fields.current()].label : "");
        if (!settings.is(kHelpStatus))
            return answer;
        output.add('\n');
    }
    for (int i = 0; i < fields.count(); ++i) {
        // One that is fixed by its size has no answer.
        const bool answered = integer(call.arguments[kBefore + i * nSize + 6]) > 0;
        if (answered)
            addLine(settings, fields[i].text);
    }
    return answer;
}

} // namespace kuldialog
