
' In the place of a database provider: every statement succeeds and gives no rows, but for the result.
Class Provider
    Public CursorLocation
    Public ConnectionString
    Public ConnectionTimeout
    Public CommandTimeout
    Private lngState

    Private Sub Class_Initialize
        lngState = 0
    End Sub

    Public Sub Open(text, user, password, options)
        lngState = 1
    End Sub

    Public Sub Close
        lngState = 0
    End Sub

    Public Property Get State
        State = lngState
    End Property

    Public Function Execute(statement, ByRef recordsAffected, options)
        If lngState = 0 Then Err.Raise 5, "provider", "closed"
        recordsAffected = 0
        Set Execute = Nothing
    End Function
End Class

Class ProviderField
    Public Name
    Public Type
    Public Precision
    Public NumericScale
    Public DefinedSize
    Public Value
End Class

Class ProviderRows
    Public CursorLocation
    Private lngRow
    Private lngRows

    Public Sub Open(statement, connection, cursorType, lockType, options)
        lngRow = 1
        lngRows = 0
        If InStr(statement, "select * from tempdb..CapitalShare order by cNo") = 1 Then lngRows = 2
    End Sub

    Public Property Get EOF
        EOF = (lngRow > lngRows)
    End Property

    Public Property Get RecordCount
        RecordCount = lngRows
    End Property

    Public Sub MoveNext
        lngRow = lngRow + 1
    End Sub

    Public Property Get Fields
        Set Fields = New ProviderFields
        Fields.Row = lngRow
    End Property

    Public Property Get State
        State = 1
    End Property

    Public Sub Close
    End Sub

    Public Function NextRecordset(ByRef recordsAffected)
        Set NextRecordset = Nothing
    End Function
End Class

Class ProviderFields
    Public Row

    Public Property Get Count
        Count = 2
    End Property

    Public Property Get Item(position)
        Set Item = New ProviderField
        Item.Name = "cNo"
        Item.Type = 3
        Item.Value = Row
        If position = 1 Then
            Item.Name = "cinvcode"
            Item.Type = 202
            Item.Value = "item " & Row
        End If
    End Property
End Class

Class ConnectionMaker
    Public Default Function Make
        Set Make = New Provider
    End Function
End Class

Class RowsMaker
    Public Default Function Make
        Set Make = New ProviderRows
    End Function
End Class

Dim providers
Set providers = CreateObject("Kavelin.HostObjects")
providers.Provide "ADODB.Connection", New ConnectionMaker
providers.Provide "ADODB.Recordset", New RowsMaker

