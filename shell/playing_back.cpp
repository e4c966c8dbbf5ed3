#include "shell/playing_back.h"

#include <cstdlib>

#include "view/events.h"
#include "view/field_form.h"

void ShowPlayedBack(Watching& watching, Companion& companion, AfterWatching after) {
    auto& host = static_cast<FrontHost&>(TheHost());
    const bool playGoesOn = after == AfterWatching::PlayGoesOn;
    const auto give = [&companion](const InputEvent& event) {
        companion.Pass(event, [&event] { Dispatch(event); });
    };
    const auto source = [&, playGoesOn, give](int pump, bool lasts) {
        watching.LetIn(pump, lasts, give);
        if (!watching.Done() || (!playGoesOn && host.InnermostPump() != 0)) return;
        companion.SetWatched("");
        host.StopPlayBack();
        if (playGoesOn) return;
        host.ShowMessage("The recording ends here.");
        host.EndProcess(EXIT_SUCCESS);
    };
    const auto meanwhile = [&host, playGoesOn](const InputEvent& event) {
        const bool closes = event.kind == EventKind::CloseRequest && event.control == frmField.name;
        if (closes || (!playGoesOn && IsDeed(event))) host.EndProcess(EXIT_SUCCESS);
        if (IsDeed(event)) host.Hasten();
    };
    companion.SetWatched(playGoesOn ? "any key or click: to its end, and play on"
                                    : "any key or click ends it");
    host.PlayBack(source, meanwhile);
}
