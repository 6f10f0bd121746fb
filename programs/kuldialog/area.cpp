// SPDX-License-Identifier: MIT
#include "area.hpp"

#include <algorithm>
#include <iterator>

#include <kulgui.h>

#include "colors.hpp"
#include "output.hpp"

namespace kuldialog {

namespace {

constexpr int kMargins = 4; // frame and a blank at both sides
constexpr int kBar = 1000;  // from the first label's reference to the bar's

} // namespace

void Area::wrap(const char* szText, int nWindowWidth)
{
    width_ = nWindowWidth;
    rows_.wrap(szText, nWindowWidth - kMargins);
}

void Area::create(int nChain, int nY, int nHeight)
{
    chain_ = nChain;
    y_ = nY;
    height_ = std::clamp(nHeight, 0, kBar);
    for (int i = 0; i < height_; ++i)
        kullabel_create(chain_, ref_ + i);
    kulscrollbar_create(chain_, ref_ + kBar);
    show();
}

// The bar is there while there is something out of view.
void Area::show()
{
    for (int i = 0; i < height_; ++i) {
        std::size_t size;
        const char* row = rows_.row(first_ + i, size);
        Buffer line;
        line.add(row, size);
        line.add(' '); // a label takes a full row whole when a blank follows
        kullabel_config(chain_, ref_ + i, colors[kWindowColor], KUL_KEEP, 2, y_ + i, width_ - 3, 1,
                        LEFT, NOBORDER, line.text());
    }
    kulscrollbar_config(chain_, ref_ + kBar, colors[kWindowColor], colors[kWindowColor], width_ - 1,
                        y_, rows() > height_ && height_ > 1 ? height_ : 0, first_, rows(),
                        VERTICAL);
}

void Area::showStart()
{
    first_ = 0;
    show();
}

void Area::showEnd()
{
    first_ = std::max(rows() - height_, 0);
    show();
}

bool Area::scroll(int nKey)
{
    constexpr int kFar = 1 << 30;
    const int nRows = nKey == KS_UP         ? -1
                      : nKey == KS_DOWN     ? 1
                      : nKey == KS_PAGEUP   ? -height_
                      : nKey == KS_PAGEDOWN ? height_
                      : nKey == KS_HOME     ? -kFar
                      : nKey == KS_END      ? kFar
                                            : 0;
    const int nLast = rows() - height_;
    if (nRows == 0 || nLast <= 0)
        return false;
    const int nFirst = std::clamp(first_ + nRows, 0, nLast);
    if (nFirst != first_) {
        first_ = nFirst;
        show();
    }
    return true;
}

} // namespace kuldialog
