# Fails when a page does not show a file word for word.
#
#   cmake -D PAGE=... -D TASK=... -P CheckQuote.cmake

file(READ ${PAGE} page)
file(READ ${TASK} task)
string(FIND "${page}" "```json\n${task}```" place)
if(place EQUAL -1)
    message(FATAL_ERROR "${PAGE} does not show ${TASK} as it is")
endif()
