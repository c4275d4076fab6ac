' The scripted host by itself: what the other scripts rely on.
Dim e, connection, recordset, affected, filter

Report.Step "texts"
Expect Len("资金占用额"), 5, "length of a Chinese text"
Expect PlainText(DateSerial(2008, 7, 31)), "2008-07-31", "a date"
Expect Shown(Null), "null", "a null"

Report.Step "statements"
Host.Scenario.Tell "rows|whole|select a\r\nfrom t"
Host.Scenario.Tell "columns|a|名称"
Host.Scenario.Tell "row|#int 5|x\py"
Host.Scenario.Tell "row|#null|#decimal 0.01"
Set connection = New ScriptedConnection
connection.ConnectionString = "account database"
connection.Open "", "", "", -1
Expect connection.State, 1, "state"
ExpectObject connection.Execute("drop table t", affected, 1), Nothing, "result"
Set recordset = New ScriptedRecordset
recordset.CursorLocation = 3
recordset.Open "select a" & vbCrLf & "from t", connection, 3, 1, -1
Expect recordset.RecordCount, 2, "rows"
Expect recordset.Fields.Count, 2, "fields"
Expect recordset.Fields.Item(1).Name, "名称", "name of a field"
Expect recordset.Fields.Item(0).Value, 5, "an integer"
Expect recordset.Fields.Item(1).Value, "x|y", "a text"
recordset.MoveNext
Expect recordset.Fields.Item(0).Value, Null, "a null"
Expect recordset.EOF, False, "end"
recordset.MoveNext
Expect recordset.EOF, True, "end"
recordset.Close
ExpectLines Host.Events.Lines, LinesOf("#1.ConnectionString = 'account database'" & vbLf & _
    "#1.Open user='' password='' options=-1" & vbLf & "#1.Execute [1]" & vbLf & _
    "#1.OpenRecordset @1 location=3 type=3 lock=1 [2]" & vbLf & "@1.RecordCount" & vbLf & "@1.Field a" & vbLf & _
    "@1.Field 名称" & vbLf & "@1.MoveNext" & vbLf & "@1.Field a" & vbLf & "@1.MoveNext" & vbLf & "@1.Close"), "events"

Report.Step "the filter"
Host.Restart
Host.Scenario.Tell "field|cNo|1|#empty|range"
Host.Scenario.Tell "where||all of it"
Host.Scenario.Tell "where|2|part"
Set e = New ReportArguments
Set filter = e.RawFilter
filter.FilterList.Item(1).LngGrouptoken = 1
Expect filter.FilterList.Item("CNO").varValue, "1", "value by key"
Expect filter.FilterList.Item(1).varValue2, Empty, "other end"
Expect filter.FilterList.Item(1).RangeInput, True, "range"
Expect filter.FilterList.Item(1).IsMultSel, False, "several"
Expect filter.GetWhereWithToken(1), "all of it", "where"
Expect filter.GetWhereWithToken(2), "part", "where of a token"
Expect Host.Scenario.Fields.Item(1).Token, 1, "token"
Expect e.Login.Year, "2008", "login"
e.DataSource.Type = 2

Report.Step "failures"
On Error Resume Next
Host.Events.FailAtLine "e.Login"
Set filter = e.Login
ExpectError PlannedError, "host", "planned failure at: e.Login", "an event"
Host.FailAtStatement = 1
connection.Execute "select 1", affected, 1
ExpectError PlannedError, "provider", "planned failure of statement 1", "a statement"
Report.Finish
