' The registered component makes its objects.
Dim made
Set made = CreateObject("Kavelin.clsProPortion")
made.ReportTitle = "资金占用"
Expect made.ReportTitle, "资金占用", "title"
Set made = CreateObject("Kavelin.HostObjects")
made.Withdraw "ADODB.Connection"
Report.Finish
