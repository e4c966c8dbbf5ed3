#include "view/forms.h"

#include <memory>

#include "personal/info_form.h"
#include "view/field_audience.h"
#include "view/field_form.h"
#include "view/trail.h"

namespace {

Audience* watching = nullptr;

}  // namespace

std::vector<Form*> OtherForms() {
    return {&frmProgress, &frmInfo};
}

Form* FormByName(std::string_view name) {
    for (Form* form :
         {static_cast<Form*>(&frmField), static_cast<Form*>(&frmProgress), static_cast<Form*>(&frmInfo)})
        if (form->name == name) return form;
    return nullptr;
}

void ResetForms() {
    static FieldAudience windows;
    InstallAudience(watching != nullptr ? watching : &windows);
    ForgetTrails();
    std::destroy_at(&frmField);
    std::construct_at(&frmField);
    std::destroy_at(&frmProgress);
    std::construct_at(&frmProgress);
    std::destroy_at(&frmInfo);
    std::construct_at(&frmInfo);
}

void WatchThrough(Audience* watcher) {
    watching = watcher;
}
