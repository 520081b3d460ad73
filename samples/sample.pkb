-- A sample for the Textzone demo: a PL/SQL package body.
CREATE OR REPLACE PACKAGE BODY order_tools AS

  /* The total of an order, lines and freight. */
  FUNCTION order_total(p_order_id IN NUMBER) RETURN NUMBER IS
    v_total NUMBER := 0;
  BEGIN
    SELECT NVL(SUM(l.quantity * l.unit_price), 0)
      INTO v_total
      FROM order_lines l
     WHERE l.order_id = p_order_id;
    RETURN v_total + freight_of(p_order_id);
  EXCEPTION
    WHEN NO_DATA_FOUND THEN
      RETURN 0;
  END order_total;

  PROCEDURE close_order(p_order_id IN NUMBER) IS
  BEGIN
    UPDATE orders
       SET status = 'CLOSED', closed_at = SYSDATE
     WHERE order_id = p_order_id;
    COMMIT;
  END close_order;

END order_tools;
/
