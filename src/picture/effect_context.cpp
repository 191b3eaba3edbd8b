#include "picture/effect_context.h"

#include "model/windows/picture_holder.h"

namespace picture {

void ReleaseEffectContext(Application& app) {
    app.state.EffectDc.reset();
    app.state.EffectDcValid = 0;
}

void CreateEffectContext(Application& app) {
    app.state.EffectDc = app.windows.form4.Picture1.Picture();
    app.state.EffectDcValid = 1;
}

}  // namespace picture
