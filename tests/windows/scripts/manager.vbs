' The turnover hides columns in the format that the host's report manager gives.
' scenario: turnover/usual
Dim Turnover, Format, e, i, hidden

Report.Step "a format with columns"
ProvideAll
Host.Scenario.Read "scenario.txt"
Set Format = New ReportFormat
For Each i In Split("部门_编码|仓库_名称|存货_分类|存货编码|分析_出库成本|分析_周转率", "|")
    Format.cols.Add i
Next
Set Host.Manager.Format = Format
Set Turnover = CreateObject("Kavelin." & Host.Scenario.ClassName)
Set e = New ReportArguments
Turnover.GETSQL e
ExpectObject Turnover.ObjreportManager, Host.Manager, "the manager that the report keeps"
hidden = ""
For i = 1 To Format.cols.Count
    If Not Format.cols.Item(i).colVisible Then
        Expect Format.cols.Item(i).Col, 0, "column " & i
        hidden = hidden & Format.cols.Item(i).Expression & " "
    End If
Next
Expect hidden, "部门_编码 仓库_名称 ", "the columns that are hidden"
Report.Finish
