' Not one class can be created while the component isn't registered.
Dim name, made
On Error Resume Next
For Each name In Split("clsProPortion|ClsWtInfo|HostObjects", "|")
    Err.Clear
    Set made = CreateObject("Kavelin." & name)
    Expect Err.Number, 429, "creating " & name
Next
Err.Clear
Report.Finish
