#include "view/log.h"

#include "view/field_form.h"

void AddToLog(const std::string& text, int level) {
    ComboBox& log = frmField.cmbLog;
    log.Tag += text;
    if (level != 1) return;
    log.Text = log.Tag;
    log.List.push_back(log.Tag);
    log.Tag.clear();
}
