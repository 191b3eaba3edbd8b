# And a field that nothing bears.
# exit: 2
# no trace: "event"
@1000 expect SlideIndexes 1
