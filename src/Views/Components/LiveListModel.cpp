#include "LiveListModel.h"

void LiveListModel::setSource(AppModel* model)
{
    if (model_)
        disconnect(model_, nullptr, this, nullptr);
    model_ = model;
    if (model_)
        connect(model_, &AppModel::changed, this, &LiveListModel::refresh);
    refresh();
}
