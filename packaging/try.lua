-- A customer is kept and printed: what an unpacked package has to be good for. The argument names the PDF.
start()
login("varnik", "kemiri")
open "F02"
click "bttnAdd"
type("txtKode", "{Enter}")
enter("txtNama", "FIRST CUSTOMER")
click "bttnOK"
expect(message(), nil)
expect(sql "Select NamaCus From Customer", {{"FIRST CUSTOMER"}})
click "bttnPrint"
expect(report().rows, 1)
report():pdf(arg[1])
stop()
