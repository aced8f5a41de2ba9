#include "forms/MasterButtons.h"

namespace orvane {

void MasterButtons::setEntering(bool entering) {
    for (Button* button : {&OKButton, &cmdCancel})
        button->setVisible(entering);
    for (Button* button : {&cmdAdd, &cmdEdit, &cmdDel, &cmdRefresh})
        button->setVisible(!entering);
}

Layout MasterButtons::row() const {
    return layout::buttons({&cmdAdd, &cmdEdit, &cmdDel, &cmdRefresh}, {&cmdCancel, &CancelButton, &OKButton});
}

} // namespace orvane
