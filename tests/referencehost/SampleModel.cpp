// SPDX-License-Identifier: MIT
#include "SampleModel.h"

#include <OpenSG/OSGSimpleAttachments.h>

Model modelOf(const QStringList& keyNames)
{
    const osg::NodePtr root = osg::makeCoredNode<osg::Group>();
    for (const QString& name : keyNames)
        addNode<osg::KeyTransform>(root, name.toUtf8().constData());
    return std::make_shared<TD_CelVq3d>(root);
}

Model modelOfSize(int keyNodes)
{
    QStringList names;
    for (int i = 0; i < keyNodes; ++i)
        names << QString::number(i);
    return modelOf(names);
}

void setNodeName(const osg::NodePtr& node, const char* name)
{
    osg::setName(node, name);
}
