#pragma once

#include "refhost/validator/trials/OperationCheck.h"

/// behaviour.messages: messages are single lines, and warnings of a run.
class MessagesCheck : public OperationCheck
{
public:
    MessagesCheck();

protected:
    void examine(Specimen &specimen, CheckContext &context) const override;
};
