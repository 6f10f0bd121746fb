// SPDX-License-Identifier: MIT
#include "area.hpp"

#include <algorithm>

namespace kulready {

namespace {

constexpr int kMargins = 4; // frame and a blank at both sides

} // namespace

void Area::wrap(const char* szText, int nDialogWidth)
{
    nWidth_ = nDialogWidth;
    whole_ = rows_.wrap(szText, nDialogWidth - kMargins);
}

int Area::last() const
{
    return std::max(rows() - nHeight_, 0);
}

void Area::create(int nChain, int nY, int nHeight)
{
    nChain_ = nChain;
    nY_ = nY;
    nHeight_ = std::max(nHeight, 0);
    for (int i = 0; i < nHeight_; ++i)
        kullabel_create(nChain_, nFirstRef_ + i);
    kulscrollbar_create(nChain_, nBarRef_);
    show(false);
}

// The bar is there while there is something out of view.
void Area::show(bool toEnd)
{
    nFirst_ = toEnd ? last() : std::min(nFirst_, last());
    for (int i = 0; i < nHeight_; ++i) {
        std::size_t size = 0;
        const char* start = rows_.row(nFirst_ + i, size);
        // A label takes a row whole when a blank follows, and begins it behind its blanks.
        std::size_t blanks = 0;
        while (blanks < size && start[blanks] == ' ')
            ++blanks;
        Text row;
        row.add(start + blanks, size - blanks);
        row.add(" ", 1);
        const int nBlanks = static_cast<int>(blanks);
        const int nResult =
            kullabel_config(nChain_, nFirstRef_ + i, KUL_KEEP, KUL_KEEP, 2 + nBlanks, nY_ + i,
                            std::max(nWidth_ - 3 - nBlanks, 1), 1, LEFT, NOBORDER, row.text());
        whole_ = whole_ && row.isWhole() && nResult == 0;
    }
    kulscrollbar_config(nChain_, nBarRef_, KUL_KEEP, KUL_KEEP, nWidth_ - 1, nY_,
                        last() > 0 && nHeight_ > 1 ? nHeight_ : 0, nFirst_, rows(), VERTICAL);
}

bool Area::scroll(int nKey)
{
    constexpr int kFar = 1 << 30;
    const int nRows = nKey == KS_UP         ? -1
                      : nKey == KS_DOWN     ? 1
                      : nKey == KS_PAGEUP   ? -nHeight_
                      : nKey == KS_PAGEDOWN ? nHeight_
                      : nKey == KS_HOME     ? -kFar
                      : nKey == KS_END      ? kFar
                                            : 0;
    if (nRows == 0 || last() == 0)
        return false;
    const int nFirst = std::clamp(nFirst_ + nRows, 0, last());
    if (nFirst != nFirst_) {
        nFirst_ = nFirst;
        show(false);
    }
    return true;
}

} // namespace kulready
