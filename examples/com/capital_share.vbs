' Runs the capital share on a SQL Server and prints the items that tie up most capital.
'
'     cscript /nologo capital_share.vbs "Provider=...;Data Source=...;Initial Catalog=...;..." 2008
'
' Wants Kavelin.dll registered (regsvr32 Kavelin.dll). The host's side of a report is a handful of objects;
' the library calls their members by name.
Option Explicit

Const ResultTable = "tempdb..CapitalShare"

' The argument of GETSQL.
Class ReportArguments
    Public DataSource
    Public Login
    Public RawFilter
    Public Args
    Public LangID
End Class

Class ResultSource
    Public Type  ' the library writes 2: the data are in a table
    Public sql   ' whose name the host has chosen
End Class

Class LoginOfUser
    Public VosDbName
    Public ConnectionText
    Public AccountId
    Public UserId
    Public Year
    Public Password
    Public LanguageRegion
    Public AuthService
End Class

Class ReportFilter
    Public FilterList
End Class

' One field of the filter: how many ranks the user wants to see.
Class RankItem
    Public Name
    Public varValue
    Public varValue2
    Public RangeInput
    Public IsMultSel
    Public LngGrouptoken

    Private Sub Class_Initialize
        Name = "cNo"
        varValue = "10"
        RangeInput = False
        IsMultSel = False
    End Sub
End Class

Class FilterItems
    Private objRank

    Private Sub Class_Initialize
        Set objRank = New RankItem
    End Sub

    Public Property Get Count
        Count = 1
    End Property

    Public Property Get Item(position)
        Set Item = objRank
    End Property
End Class

' Texts and messages of the suite, where there is no suite: a text is its key.
Class Texts
    Public Login

    Public Function GetResString(key)
        GetResString = key
    End Function

    Public Function GetEnumName(enumType, code)
        GetEnumName = code
    End Function

    Public Sub ShowMessage(text, icon)
        WScript.Echo text
    End Sub
End Class

' Makes objects that the library asks for by name.
Class TextsMaker
    Public Default Function Make
        Set Make = New Texts
    End Function
End Class

Function NewArguments(connectionText, year)
    Dim e
    Set e = New ReportArguments
    Set e.DataSource = New ResultSource
    e.DataSource.sql = ResultTable
    Set e.Login = New LoginOfUser
    e.Login.VosDbName = connectionText
    e.Login.ConnectionText = connectionText
    e.Login.Year = year
    Set e.Login.AuthService = Nothing
    Set e.RawFilter = New ReportFilter
    Set e.RawFilter.FilterList = New FilterItems
    Set NewArguments = e
End Function

Sub PrintRow(fields, names)
    Dim i, line
    For i = 0 To fields.Count - 1
        If i > 0 Then line = line & vbTab
        If names Then
            line = line & fields.Item(i).Name
        ElseIf Not IsNull(fields.Item(i).Value) Then
            line = line & fields.Item(i).Value
        End If
    Next
    WScript.Echo line
End Sub

Sub PrintRows(connection, statement)
    Dim rows
    Set rows = CreateObject("ADODB.Recordset")
    rows.CursorLocation = 3
    rows.Open statement, connection, 3, 1, -1
    PrintRow rows.Fields, True
    Do Until rows.EOF
        PrintRow rows.Fields, False
        rows.MoveNext
    Loop
    rows.Close
End Sub

Sub RunCapitalShare(connectionText, year)
    Dim hostObjects, connection, report, affected
    Set hostObjects = CreateObject("Kavelin.HostObjects")
    hostObjects.Provide "Lumenet.ResLog", New TextsMaker
    Set connection = CreateObject("ADODB.Connection")
    connection.Open connectionText, "", "", -1

    Set report = CreateObject("Kavelin.clsProPortion")
    report.GETSQL NewArguments(connectionText, year)

    PrintRows connection, "select * from " & ResultTable & " order by cNo"
    connection.Execute "drop table " & ResultTable, affected, 1
    connection.Close
End Sub

If WScript.Arguments.Count <> 2 Then
    WScript.Echo "usage: cscript capital_share.vbs CONNECTION YEAR"
    WScript.Quit 2
End If
On Error Resume Next
RunCapitalShare WScript.Arguments.Item(0), WScript.Arguments.Item(1)
If Err.Number <> 0 Then
    WScript.Echo Err.Source & ": " & Err.Description
    WScript.Quit 1
End If
