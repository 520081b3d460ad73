' A sample for the Textzone demo: Visual Basic .NET.
Imports System.Collections.Generic

Public Module Inventory
    ''' The items below their reorder level.
    Public Function LowStock(items As List(Of Item)) As List(Of Item)
        Dim result As New List(Of Item)
        For Each it As Item In items
            If it.Quantity < it.ReorderLevel Then
                result.Add(it)
            End If
        Next
        Return result
    End Function

    Public Sub Report(items As List(Of Item))
        Dim message As String = "Low stock: " & _
            LowStock(items).Count & " items"
        Console.WriteLine(message)
    End Sub
End Module
